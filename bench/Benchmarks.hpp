#pragma once

#include "bench/RatioReporter.hpp"

namespace kestrelfen {

/// A tick with nothing due, in every state. Each fails where a tick takes memory.
void registerTickBenchmarks(RatioReporter& reporter);

/// The start of a day, and how it compares with the first look at another day.
void registerCalendarBenchmarks(RatioReporter& reporter);

/// What the views ask for: the gates, and everything that they show.
void registerContentBenchmarks(RatioReporter& reporter);

/// What is asked of a history of one year and of ten.
void registerStoreBenchmarks(RatioReporter& reporter);

} // namespace kestrelfen
