#include "platform/CalendarOracle.hpp"

#include "platform/CalendarEnvironment.hpp"

#include <ctime>
#include <random>

namespace kestrelfen {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;
constexpr int samplesPerZone = 100;

/// Every stay in a local day lasts longer than this.
constexpr std::int64_t walkStep = 30;

constexpr const char* zones[] = {
    "America/Sao_Paulo", "Asia/Beirut",      "Africa/Cairo",        "America/Havana",  "Pacific/Apia",
    "Europe/Berlin",     "America/St_Johns", "Australia/Lord_Howe", "Asia/Kathmandu",  "Asia/Tehran",
    "Pacific/Kwajalein", "Europe/Dublin",    "Africa/Casablanca",   "America/Asuncion"};

std::tm localTime(std::int64_t second) {
    const std::time_t time = second;
    std::tm local{};
    localtime_r(&time, &local);
    return local;
}

CivilDay localDay(std::int64_t second) {
    const std::tm local = localTime(second);
    return std::chrono::year(local.tm_year + 1'900) / (local.tm_mon + 1) / local.tm_mday;
}

/// The first second at which local time shows `day`; where it never does, `day`'s next one.
std::int64_t firstSecondOf(CivilDay day) {
    const std::int64_t midnight = std::chrono::seconds(day.time_since_epoch()).count();
    for (std::int64_t walk = midnight - secondsPerDay; walk < midnight + 2 * secondsPerDay;
         walk += walkStep) {
        if (localDay(walk) == day) {
            std::int64_t first = walk - walkStep + 1;
            while (localDay(first) != day) {
                ++first;
            }
            return first;
        }
    }
    return firstSecondOf(day + std::chrono::days(1));
}

/// Seconds at most a day before a change of the offset.
std::vector<std::int64_t> changes(std::int64_t begin, std::int64_t end) {
    std::vector<std::int64_t> result;
    for (std::int64_t second = begin; second < end; second += secondsPerDay) {
        if (localTime(second).tm_gmtoff != localTime(second + secondsPerDay).tm_gmtoff) {
            result.push_back(second);
        }
    }
    return result;
}

std::vector<CalendarSample> samples() {
    const std::int64_t begin = parseIsoTime("1900-01-01T00:00:00Z")->wholeSeconds();
    const std::int64_t end = parseIsoTime("2037-12-31T00:00:00Z")->wholeSeconds();
    std::mt19937_64 random(20'260'309);
    const auto within = [&random](std::int64_t first, std::int64_t last) {
        return std::uniform_int_distribution<std::int64_t>(first, last)(random);
    };
    std::vector<CalendarSample> result;
    for (const char* const zone : zones) {
        const ZoneVariable variable(zone);
        tzset();
        const auto changing = changes(begin, end);
        for (int index = 0; index < samplesPerZone; ++index) {
            std::int64_t second = within(begin, end);
            if (index % 2 == 0) {
                const auto change = within(0, static_cast<std::int64_t>(changing.size()) - 1);
                second =
                    changing[static_cast<std::size_t>(change)] + within(-secondsPerDay, 3 * secondsPerDay);
            }
            const Date date = Date::fromMicroseconds(second * 1'000'000 + within(0, 999'999));
            const CivilDay day = localDay(second);
            const auto days = static_cast<int>(within(-40, 40));
            result.push_back({zone, date, Date::fromSeconds(firstSecondOf(day)), days,
                              Date::fromSeconds(firstSecondOf(day + std::chrono::days(days)))});
        }
    }
    return result;
}

} // namespace

const std::vector<CalendarSample>& calendarSamples() {
    static const std::vector<CalendarSample> result = samples();
    return result;
}

} // namespace kestrelfen
