#pragma once

#include "base/DaySummary.hpp"

#include <map>
#include <vector>

namespace kestrelfen {

/// The days by the moment at which each begins. They live in `days`.
using DaysByStart = std::map<Date, const DaySummary*>;

/// Two days with one `startOfDay` are a fault.
DaysByStart daysByStart(const std::vector<DaySummary>& days);

} // namespace kestrelfen
