#pragma once

#include "base/CivilTime.hpp"

#include <string>
#include <vector>

namespace kestrelfen {

/// A date in a zone with what is true of it.
struct CalendarSample {
    std::string zone;
    Date date;
    Date startOfDay;
    /// A number of days, and the start of the day that lies so many days after.
    int days = 0;
    Date startOfOtherDay;
};

/// Samples from 1900 to 2037, half of them anywhere and half within two days of a change of the offset, with
/// the starts of days found by walking through local time as the C library gives it, a moment after the
/// other. In the order of the zones. The same in each run.
const std::vector<CalendarSample>& calendarSamples();

} // namespace kestrelfen
