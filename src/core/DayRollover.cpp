#include "core/DayRollover.hpp"

#include "platform/ports/Calendar.hpp"

namespace kestrelfen {

DayRollover::DayRollover(Date now, const Calendar& calendar, const Calendar* calendarOverride)
    : calendar_(calendarOverride ? *calendarOverride : calendar),
      currentDayStart_(calendar_.startOfDay(now)) {}

bool DayRollover::check(Date date) {
    const Date start = calendar_.startOfDay(date);
    if (start == currentDayStart_) {
        return false;
    }
    const Date old = currentDayStart_;
    currentDayStart_ = start;
    if (onRollover) {
        onRollover(old, start);
    }
    return true;
}

} // namespace kestrelfen
