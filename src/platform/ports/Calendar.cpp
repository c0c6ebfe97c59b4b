#include "platform/ports/Calendar.hpp"

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrelfen {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;

/// No zone is as far from UTC as this, and none changes its offset twice within the step.
constexpr std::int64_t furthestOffset = std::int64_t{25} * 3'600;
constexpr std::int64_t searchStep = std::int64_t{3} * 3'600;

/// A run of whole seconds over which the offset stays the same.
struct Period {
    std::int64_t begin;
    std::int64_t end;
    std::int64_t offset;
};

/// The periods, in order, of a stretch that holds every instant at which some place may show `day`.
template <typename OffsetAt>
std::vector<Period> periodsAround(CivilDay day, OffsetAt offsetAt) {
    const std::int64_t midnight = std::chrono::seconds(day.time_since_epoch()).count();
    const std::int64_t from = midnight - furthestOffset;
    const std::int64_t until = midnight + secondsPerDay + furthestOffset;
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

/// The first second of `day` within `periods`, or, where the zone left the day out, of the next one.
std::int64_t firstSecond(const std::vector<Period>& periods, CivilDay day) {
    const std::int64_t midnight = std::chrono::seconds(day.time_since_epoch()).count();
    std::optional<std::int64_t> next;
    for (const Period& period : periods) {
        const std::int64_t second = std::max(period.begin, midnight - period.offset);
        if (second >= period.end) {
            continue;
        }
        if (second + period.offset < midnight + secondsPerDay) {
            return second;
        }
        next = next.value_or(second);
    }
    return next.value_or(midnight);
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
    const auto periods =
        periodsAround(day, [this](std::int64_t second) { return utcOffset(Date::fromSeconds(second)); });
    return Date::fromSeconds(firstSecond(periods, day));
}

CivilTime Calendar::civilTime(Date date) const {
    return kestrelfen::civilTime(date, utcOffset(date));
}

Calendar::Stretch Calendar::stretchAround(Date date) const {
    const std::uint64_t generation = zoneGeneration();
    const std::int64_t offset = utcOffset(date);
    const CivilDay day = kestrelfen::civilTime(date, offset).day;
    const auto periods =
        periodsAround(day, [this](std::int64_t second) { return utcOffset(Date::fromSeconds(second)); });
    const auto period =
        std::find_if(periods.begin(), periods.end(),
                     [second = date.wholeSeconds()](const Period& each) { return second < each.end; });
    const std::int64_t dayBegin = std::chrono::seconds(day.time_since_epoch()).count() - offset;
    return {Date::fromSeconds(std::max(period->begin, dayBegin)),
            Date::fromSeconds(std::min(period->end, dayBegin + secondsPerDay)),
            Date::fromSeconds(firstSecond(periods, day)), generation};
}

} // namespace kestrelfen
