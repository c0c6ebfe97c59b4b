#pragma once

#include <compare>
#include <cstdint>
#include <limits>

namespace kestrelfen {

/// An absolute instant as a whole number of microseconds since 1970-01-01 00:00:00 UTC, so that equality of
/// two dates is exact. Durations are doubles in seconds.
class Date {
  public:
    constexpr Date() = default;

    static constexpr Date fromMicroseconds(std::int64_t microseconds) {
        Date date;
        date.microseconds_ = microseconds;
        return date;
    }

    /// Beyond the representable range the date stays at the range's end.
    static constexpr Date fromSeconds(std::int64_t seconds) {
        constexpr std::int64_t latest = std::numeric_limits<std::int64_t>::max();
        constexpr std::int64_t earliest = std::numeric_limits<std::int64_t>::min();
        if (seconds > latest / 1'000'000) {
            return fromMicroseconds(latest);
        }
        return fromMicroseconds(seconds < earliest / 1'000'000 ? earliest : seconds * 1'000'000);
    }

    /// 0001-01-01 00:00:00 UTC.
    static constexpr Date distantPast() { return fromSeconds(-62'135'596'800); }

    constexpr std::int64_t microseconds() const { return microseconds_; }

    /// Whole seconds since 1970, rounded towards the past.
    constexpr std::int64_t wholeSeconds() const {
        const std::int64_t quotient = microseconds_ / 1'000'000;
        return microseconds_ % 1'000'000 < 0 ? quotient - 1 : quotient;
    }

    friend constexpr bool operator==(const Date&, const Date&) = default;
    friend constexpr std::strong_ordering operator<=>(const Date& one, const Date& other) {
        return one.microseconds_ <=> other.microseconds_;
    }

  private:
    std::int64_t microseconds_ = 0;
};

/// The date `seconds` later, to the nearest microsecond. Beyond the representable range it stays at the
/// range's end; a number of seconds that is not a number counts as 0.
Date operator+(Date date, double seconds);

inline Date operator-(Date date, double seconds) {
    return date + -seconds;
}

/// Seconds from `earlier` to `later`; the nearest double to the exact difference.
double operator-(Date later, Date earlier);

} // namespace kestrelfen
