#pragma once

#include "base/Date.hpp"

#include <string>
#include <string_view>

namespace kestrelfen {

/// The moment that `text` names in UTC: "08:19:50" on 2026-03-09, "2026-03-10 00:00:10" on any day, with an
/// optional fraction of the second.
Date at(std::string_view text);

/// The text from which `at` reads `date`.
std::string momentText(Date date);

/// Like momentText, with the day alone for a moment that is a midnight of UTC.
std::string dayText(Date dayStart);

/// As few digits as tell the number, up to a microsecond.
std::string secondsText(double seconds);

} // namespace kestrelfen
