#pragma once

#include "base/Date.hpp"

#include <functional>

namespace kestrelfen {

class Calendar;

/// Knows which local day it is for the timer. Main thread only.
class DayRollover {
  public:
    /// Called when the day has changed, with the old and the new day's start.
    std::function<void(Date from, Date to)> onRollover;

    /// `calendarOverride`, when not null, is used instead of the person's `calendar`. Both outlive this
    /// object.
    DayRollover(Date now, const Calendar& calendar, const Calendar* calendarOverride = nullptr);

    Date currentDayStart() const { return currentDayStart_; }

    /// Whether the day has changed since the last check; later or earlier counts alike.
    bool check(Date date);

  private:
    const Calendar& calendar_;
    Date currentDayStart_;
};

} // namespace kestrelfen
