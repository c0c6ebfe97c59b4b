#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kestrelfen {

/// The rule that a zone follows beyond its listed changes, such as "CET-1CEST,M3.5.0,M10.5.0/3": a standard
/// offset and, for part of each year, another. Immutable; any thread.
class ZoneRule {
  public:
    /// Absent when `text` is no such rule.
    static std::optional<ZoneRule> parse(std::string_view text);

    /// Seconds ahead of UTC at `second` (since 1970).
    std::int64_t offsetAt(std::int64_t second) const;

  private:
    /// A local time of one day in each year.
    struct YearlyTime {
        enum class Kind { weekdayOfMonth, dayWithoutLeapDay, dayFromZero };

        Kind kind = Kind::weekdayOfMonth;
        int month = 0;
        int week = 0;
        /// A weekday from Sunday, 0, or a day of the year.
        int day = 0;
        std::int64_t secondOfDay = 7'200;

        static std::optional<YearlyTime> take(std::string_view& text);
        bool takeDate(std::string_view& text);
        /// The local second, as if local time were UTC, in `year`.
        std::int64_t secondIn(int year) const;
    };

    struct Summer {
        std::int64_t offset = 0;
        YearlyTime begin;
        YearlyTime end;
    };

    static std::optional<Summer> takeSummer(std::string_view& text, std::int64_t standardOffset);

    std::int64_t offset_ = 0;
    std::optional<Summer> summer_;
};

} // namespace kestrelfen
