#include "base/Date.hpp"

#include <algorithm>
#include <cmath>

namespace kestrelfen {

namespace {

constexpr std::int64_t latest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t earliest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t microsecondsPerSecond = 1'000'000;

/// Up to here a double holds every whole number.
constexpr std::uint64_t exactEnd = std::uint64_t{1} << 53;

/// Holds the sum of a date and any offset that matters.
__extension__ using Wide = __int128;

/// The whole number of microseconds nearest to `seconds`; cut at twice the range of a date.
Wide nearestMicroseconds(double seconds) {
    constexpr double furthest = 2e13;
    if (std::isnan(seconds)) {
        return 0;
    }
    // Taken apart, because the product of a large number of seconds would be rounded to more than a
    // microsecond.
    const double cut = std::clamp(seconds, -furthest, furthest);
    const double whole = std::trunc(cut);
    const double rest = std::nearbyint((cut - whole) * static_cast<double>(microsecondsPerSecond));
    return Wide{static_cast<std::int64_t>(whole)} * microsecondsPerSecond + static_cast<std::int64_t>(rest);
}

/// The double nearest to `microseconds` / 1 000 000.
double nearestSeconds(std::uint64_t microseconds) {
    constexpr auto divisor = static_cast<double>(microsecondsPerSecond);
    if (microseconds <= exactEnd) {
        return static_cast<double>(microseconds) / divisor;
    }
    const std::uint64_t whole = microseconds / microsecondsPerSecond;
    const std::uint64_t rest = microseconds % microsecondsPerSecond;
    return static_cast<double>(whole) + static_cast<double>(rest) / divisor;
}

} // namespace

Date operator+(Date date, double seconds) {
    const Wide sum = date.microseconds() + nearestMicroseconds(seconds);
    return Date::fromMicroseconds(static_cast<std::int64_t>(std::clamp(sum, Wide{earliest}, Wide{latest})));
}

double operator-(Date later, Date earlier) {
    const auto end = static_cast<std::uint64_t>(later.microseconds());
    const auto begin = static_cast<std::uint64_t>(earlier.microseconds());
    return later < earlier ? -nearestSeconds(begin - end) : nearestSeconds(end - begin);
}

} // namespace kestrelfen
