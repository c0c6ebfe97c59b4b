#include "support/Moments.hpp"

#include "base/CivilTime.hpp"
#include "base/Fault.hpp"

#include <cstdio>

namespace kestrelfen {

namespace {

constexpr std::string_view usualDay = "2026-03-09";
constexpr std::size_t dayLength = usualDay.size();

std::string withoutFinalZeros(std::string text) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text;
}

} // namespace

Date at(std::string_view text) {
    const bool hasDay = text.size() > dayLength && text[dayLength] == ' ';
    const std::string_view day = hasDay ? text.substr(0, dayLength) : usualDay;
    const std::string_view time = hasDay ? text.substr(dayLength + 1) : text;
    const auto date = parseIsoTime(std::string(day) + "T" + std::string(time) + "Z");
    if (!date) {
        fault("a moment that cannot be read");
    }
    return *date;
}

std::string momentText(Date date) {
    std::string text = isoTime(date, 6);
    text.pop_back();
    text = withoutFinalZeros(std::move(text));
    const std::size_t separator = text.find('T');
    text[separator] = ' ';
    return text.compare(0, separator, usualDay) == 0 ? text.substr(separator + 1) : text;
}

std::string dayText(Date dayStart) {
    const CivilTime time = civilTime(dayStart, 0);
    return utcMidnight(time.day) == dayStart ? isoDay(time.day) : momentText(dayStart);
}

std::string secondsText(double seconds) {
    char text[64];
    std::snprintf(text, sizeof text, "%.6f", seconds);
    return withoutFinalZeros(text);
}

} // namespace kestrelfen
