#include "platform/ports/Calendar.hpp"

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrelfen {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;

/// No zone was ever further from UTC than this, and none changed its offset twice within the step.
constexpr std::int64_t furthestOffset = 36 * 3'600;
constexpr std::int64_t searchStep = 3'600;

/// A run of whole seconds over which the offset stays the same.
struct Period {
    std::int64_t begin;
    std::int64_t end;
    std::int64_t offset;
};

std::int64_t dayNumber(std::int64_t second, std::int64_t offset) {
    return std::chrono::floor<std::chrono::days>(std::chrono::seconds(second + offset)).count();
}

/// The periods that make up [from, until), in order.
template <typename OffsetAt>
std::vector<Period> periods(std::int64_t from, std::int64_t until, OffsetAt offsetAt) {
    std::vector<Period> result{{from, until, offsetAt(from)}};
    for (std::int64_t known = from; known < until;) {
        const std::int64_t next = std::min(known + searchStep, until);
        const std::int64_t offset = offsetAt(next);
        if (offset != result.back().offset) {
            std::int64_t before = known;
            std::int64_t after = next;
            while (after - before > 1) {
                const std::int64_t middle = before + (after - before) / 2;
                (offsetAt(middle) == result.back().offset ? before : after) = middle;
            }
            result.back().end = after;
            result.push_back({after, until, offset});
        }
        known = next;
    }
    return result;
}

/// The first second of day `day` within `periods`, or, where the zone left the day out, of the first later
/// one.
std::optional<std::int64_t> firstSecond(const std::vector<Period>& periods, std::int64_t day) {
    std::optional<std::int64_t> later;
    for (const Period& period : periods) {
        const std::int64_t second = std::max(period.begin, day * secondsPerDay - period.offset);
        if (second >= period.end) {
            continue;
        }
        const std::int64_t found = dayNumber(second, period.offset);
        if (found == day) {
            return second;
        }
        if (found > day && !later) {
            later = second;
        }
    }
    return later;
}

} // namespace

Date Calendar::startOfDay(Date date) const {
    if (known_.generation != zoneGeneration() || date < known_.from || date >= known_.until) {
        known_ = stretchAround(date);
    }
    return known_.startOfDay;
}

Date Calendar::startOfDay(Date date, int days) const {
    return startOfDay(civilTime(date).day + std::chrono::days(days));
}

Date Calendar::startOfDay(CivilDay day) const {
    const std::int64_t midnight = utcMidnight(day).wholeSeconds();
    const auto around = periods(midnight - furthestOffset, midnight + furthestOffset,
                                [this](std::int64_t second) { return utcOffset(Date::fromSeconds(second)); });
    const auto second = firstSecond(around, day.time_since_epoch().count());
    return Date::fromSeconds(second.value_or(midnight));
}

CivilTime Calendar::civilTime(Date date) const {
    return kestrelfen::civilTime(date, utcOffset(date));
}

Calendar::Stretch Calendar::stretchAround(Date date) const {
    const std::uint64_t generation = zoneGeneration();
    const CivilDay day = civilTime(date).day;
    const std::int64_t midnight = utcMidnight(day).wholeSeconds();
    const auto around = periods(midnight - furthestOffset, midnight + furthestOffset,
                                [this](std::int64_t second) { return utcOffset(Date::fromSeconds(second)); });
    const auto holds = [second = date.wholeSeconds()](const Period& period) {
        return second >= period.begin && second < period.end;
    };
    const auto period = std::find_if(around.begin(), around.end(), holds);
    const std::int64_t dayBegin = midnight - period->offset;
    return {Date::fromSeconds(std::max(period->begin, dayBegin)),
            Date::fromSeconds(std::min(period->end, dayBegin + secondsPerDay)), startOfDay(day), generation};
}

} // namespace kestrelfen
