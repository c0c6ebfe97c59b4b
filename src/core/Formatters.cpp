#include "core/Formatters.hpp"

#include "core/WholeSeconds.hpp"
#include "platform/ports/Calendar.hpp"

#include <algorithm>
#include <cstdio>

namespace kestrelfen {

namespace {

std::int64_t upwardFromZero(double seconds) {
    return std::max<std::int64_t>(WholeSeconds::roundedUp(seconds), 0);
}

std::string paired(const char* format, std::int64_t first, std::int64_t second) {
    char text[48];
    std::snprintf(text, sizeof text, format, static_cast<long long>(first), static_cast<long long>(second));
    return text;
}

std::string minutesAndSeconds(std::int64_t total, const char* secondsUnit) {
    if (total < 60) {
        return std::to_string(total) + secondsUnit;
    }
    const std::string minutes = std::to_string(total / 60) + " min";
    return total % 60 == 0 ? minutes : minutes + " " + std::to_string(total % 60) + secondsUnit;
}

} // namespace

std::string Formatters::activeTime(double seconds) {
    const std::int64_t total = std::max<std::int64_t>(WholeSeconds::nearest(seconds), 0);
    if (total >= 3600) {
        return paired("%lld h %02lld m", total / 3600, total % 3600 / 60);
    }
    return total >= 60 ? std::to_string(total / 60) + " m" : std::to_string(total) + " s";
}

std::string Formatters::duration(double seconds) {
    return minutesAndSeconds(WholeSeconds::nearest(seconds), " s");
}

std::string Formatters::countdown(double seconds) {
    const std::int64_t total = upwardFromZero(seconds);
    return paired("%lld:%02lld", total / 60, total % 60);
}

std::string Formatters::clockCountdown(double seconds) {
    const std::int64_t total = upwardFromZero(seconds);
    return paired("%02lld:%02lld", std::min<std::int64_t>(total / 60, 99), total % 60);
}

std::string Formatters::spelled(double seconds) {
    return minutesAndSeconds(upwardFromZero(seconds), " sec");
}

std::string Formatters::wholeSeconds(double seconds) {
    return std::to_string(WholeSeconds::roundedUp(seconds));
}

std::string Formatters::day(Date date, const Calendar& calendar) {
    return isoDay(calendar.civilTime(date).day);
}

} // namespace kestrelfen
