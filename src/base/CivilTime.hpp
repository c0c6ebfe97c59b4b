#pragma once

#include "base/Date.hpp"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// A calendar date without a zone.
using CivilDay = std::chrono::sys_days;

/// A calendar date and time of day without a zone.
struct CivilTime {
    CivilDay day{};
    int hour = 0;
    int minute = 0;
    int second = 0;
    int microsecond = 0;
};

/// The calendar reading of `date` in a place that is `offset` seconds ahead of UTC.
CivilTime civilTime(Date date, std::int64_t offset);

/// The instant at which a place on UTC shows the midnight that begins `day`.
Date utcMidnight(CivilDay day);

/// "2026-03-09".
std::string isoDay(CivilDay day);

/// "2026-03-09T08:00:00" with `fractionDigits` (0 to 6) digits of the second, cut, and a final "Z".
std::string isoTime(Date date, int fractionDigits);

/// Reads "2026-03-09"; absent when it is no such day.
std::optional<CivilDay> parseIsoDay(std::string_view text);

/// Reads "2026-03-09T08:00:00Z", with an optional fraction of up to six digits; absent otherwise.
std::optional<Date> parseIsoTime(std::string_view text);

} // namespace kestrelfen
