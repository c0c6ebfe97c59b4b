#include "base/Date.hpp"

#include <cmath>

namespace kestrelfen {

namespace {

constexpr double microsecondsPerSecond = 1'000'000.0;
constexpr double rangeEnd = 9'223'372'036'854'775'808.0;

std::int64_t saturated(double microseconds) {
    if (std::isnan(microseconds)) {
        return 0;
    }
    if (microseconds >= rangeEnd) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (microseconds <= -rangeEnd) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(std::nearbyint(microseconds));
}

} // namespace

Date operator+(Date date, double seconds) {
    const std::int64_t offset = saturated(seconds * microsecondsPerSecond);
    std::int64_t sum = 0;
    if (__builtin_add_overflow(date.microseconds(), offset, &sum)) {
        sum =
            offset > 0 ? std::numeric_limits<std::int64_t>::max() : std::numeric_limits<std::int64_t>::min();
    }
    return Date::fromMicroseconds(sum);
}

double operator-(Date later, Date earlier) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(later.microseconds(), earlier.microseconds(), &difference)) {
        return (static_cast<double>(later.microseconds()) - static_cast<double>(earlier.microseconds())) /
               microsecondsPerSecond;
    }
    return static_cast<double>(difference) / microsecondsPerSecond;
}

} // namespace kestrelfen
