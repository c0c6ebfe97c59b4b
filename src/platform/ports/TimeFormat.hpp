#pragma once

#include "base/Date.hpp"

#include <string>

namespace kestrelfen {

/// Times of day and dates as the person writes them, in the person's zone.
class TimeFormat {
  public:
    virtual ~TimeFormat() = default;

    /// Hours and minutes.
    virtual std::string shortTime(Date date) const = 0;

    /// Hours, minutes and seconds.
    virtual std::string timeWithSeconds(Date date) const = 0;

    /// The weekday, abbreviated.
    virtual std::string weekday(Date date) const = 0;

    /// The weekday, the day and the month, the words abbreviated, without the year.
    virtual std::string shortDay(Date date) const = 0;
};

} // namespace kestrelfen
