#pragma once

#include "base/CivilTime.hpp"
#include "base/Date.hpp"

#include <cstdint>
#include <string>

namespace kestrelfen {

// The values of a scenario's words. Each throws a ScenarioError that names the word.

/// A decimal number of seconds, in microseconds, exactly.
std::int64_t microsecondsOf(const std::string& word);

/// The same as a double of seconds.
double secondsOf(const std::string& word);

double realOf(const std::string& word);
std::int64_t integerOf(const std::string& word);
bool booleanOf(const std::string& word);
Date dateOf(const std::string& word);
CivilDay dayOf(const std::string& word);

/// The number of a display, or 0.
std::int64_t displayNumberOf(const std::string& word);

/// `word` between quotes, for a message.
std::string quoted(const std::string& word);

} // namespace kestrelfen
