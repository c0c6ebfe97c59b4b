#include "base/CivilTime.hpp"

#include <cstdio>

namespace kestrelfen {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;
constexpr std::int64_t microsecondsPerSecond = 1'000'000;

std::int64_t floorDivide(std::int64_t number, std::int64_t divisor) {
    const std::int64_t quotient = number / divisor;
    return number % divisor < 0 ? quotient - 1 : quotient;
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Takes exactly `digits` digits from the front of `text`.
std::optional<int> takeNumber(std::string_view& text, std::size_t digits) {
    if (text.size() < digits) {
        return std::nullopt;
    }
    int number = 0;
    for (const char character : text.substr(0, digits)) {
        if (!isDigit(character)) {
            return std::nullopt;
        }
        number = number * 10 + (character - '0');
    }
    text.remove_prefix(digits);
    return number;
}

bool takeCharacter(std::string_view& text, char character) {
    if (text.empty() || text.front() != character) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

std::optional<CivilDay> takeDay(std::string_view& text) {
    const auto year = takeNumber(text, 4);
    if (!year || !takeCharacter(text, '-')) {
        return std::nullopt;
    }
    const auto month = takeNumber(text, 2);
    if (!month || !takeCharacter(text, '-')) {
        return std::nullopt;
    }
    const auto day = takeNumber(text, 2);
    if (!day) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year(*year),
                                           std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    return date.ok() ? std::optional(CivilDay(date)) : std::nullopt;
}

/// Takes "." and one to six digits as microseconds; nothing at all is 0.
std::optional<int> takeFraction(std::string_view& text) {
    if (!takeCharacter(text, '.')) {
        return 0;
    }
    int microseconds = 0;
    int digits = 0;
    while (!text.empty() && isDigit(text.front()) && digits < 6) {
        microseconds = microseconds * 10 + (text.front() - '0');
        text.remove_prefix(1);
        ++digits;
    }
    if (digits == 0) {
        return std::nullopt;
    }
    for (; digits < 6; ++digits) {
        microseconds *= 10;
    }
    return microseconds;
}

std::optional<int> takeSecondOfDay(std::string_view& text) {
    const auto hour = takeNumber(text, 2);
    if (!hour || *hour > 23 || !takeCharacter(text, ':')) {
        return std::nullopt;
    }
    const auto minute = takeNumber(text, 2);
    if (!minute || *minute > 59 || !takeCharacter(text, ':')) {
        return std::nullopt;
    }
    const auto second = takeNumber(text, 2);
    if (!second || *second > 59) {
        return std::nullopt;
    }
    return (*hour * 60 + *minute) * 60 + *second;
}

} // namespace

CivilTime civilTime(Date date, std::int64_t offset) {
    const std::int64_t seconds = date.wholeSeconds() + offset;
    const std::int64_t days = floorDivide(seconds, secondsPerDay);
    const auto secondOfDay = static_cast<int>(seconds - days * secondsPerDay);
    const std::int64_t microsecond = date.microseconds() % microsecondsPerSecond;
    return {CivilDay(std::chrono::days(days)), secondOfDay / 3600, secondOfDay / 60 % 60, secondOfDay % 60,
            static_cast<int>(microsecond < 0 ? microsecond + microsecondsPerSecond : microsecond)};
}

Date utcMidnight(CivilDay day) {
    return Date::fromSeconds(std::int64_t{day.time_since_epoch().count()} * secondsPerDay);
}

std::string isoDay(CivilDay day) {
    const std::chrono::year_month_day date(day);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text;
}

std::string isoTime(Date date, int fractionDigits) {
    const CivilTime time = civilTime(date, 0);
    char text[32];
    std::snprintf(text, sizeof text, "T%02d:%02d:%02d.%06d", time.hour, time.minute, time.second,
                  time.microsecond);
    std::string result = isoDay(time.day) + text;
    const int dropped = fractionDigits == 0 ? 7 : 6 - fractionDigits;
    result.resize(result.size() - static_cast<std::size_t>(dropped));
    return result + "Z";
}

std::optional<CivilDay> parseIsoDay(std::string_view text) {
    const auto day = takeDay(text);
    return day && text.empty() ? day : std::nullopt;
}

std::optional<Date> parseIsoTime(std::string_view text) {
    const auto day = takeDay(text);
    if (!day || !takeCharacter(text, 'T')) {
        return std::nullopt;
    }
    const auto second = takeSecondOfDay(text);
    if (!second) {
        return std::nullopt;
    }
    const auto fraction = takeFraction(text);
    if (!fraction || text != "Z") {
        return std::nullopt;
    }
    return Date::fromMicroseconds(utcMidnight(*day).microseconds() + *second * microsecondsPerSecond +
                                  *fraction);
}

} // namespace kestrelfen
