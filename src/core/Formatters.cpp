#include "core/Formatters.hpp"

#include "base/Translated.hpp"
#include "core/WholeSeconds.hpp"
#include "platform/ports/Calendar.hpp"

#include <algorithm>
#include <cstdio>

namespace kestrelfen {

namespace {

std::int64_t upwardFromZero(double seconds) {
    return std::max<std::int64_t>(WholeSeconds::roundedUp(seconds), 0);
}

std::string twoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string paired(const char* format, std::int64_t first, std::int64_t second) {
    char text[48];
    std::snprintf(text, sizeof text, format, static_cast<long long>(first), static_cast<long long>(second));
    return text;
}

/// How a length is written that has only seconds, only minutes, or both.
struct LengthPatterns {
    std::string_view seconds;
    std::string_view minutes;
    std::string_view both;
};

constexpr LengthPatterns shortLength{toTranslate("%1 s"), toTranslate("%1 min"), toTranslate("%1 min %2 s")};
constexpr LengthPatterns spelledLength{toTranslate("%1 sec"), toTranslate("%1 min"),
                                       toTranslate("%1 min %2 sec")};

using Words = std::string (*)(std::string_view);

std::string originalWords(std::string_view text) {
    return std::string(text);
}

std::string lengthText(std::int64_t total, const LengthPatterns& patterns, Words words) {
    if (total < 60) {
        return filled(words(patterns.seconds), {std::to_string(total)});
    }
    const std::string minutes = std::to_string(total / 60);
    return total % 60 == 0 ? filled(words(patterns.minutes), {minutes})
                           : filled(words(patterns.both), {minutes, std::to_string(total % 60)});
}

} // namespace

std::string Formatters::activeTime(double seconds) {
    const std::int64_t total = std::max<std::int64_t>(WholeSeconds::nearest(seconds), 0);
    if (total >= 3600) {
        return translated("%1 h %2 m", {std::to_string(total / 3600), twoDigits(total % 3600 / 60)});
    }
    return total >= 60 ? translated("%1 m", {std::to_string(total / 60)})
                       : translated("%1 s", {std::to_string(total)});
}

std::string Formatters::duration(double seconds) {
    return lengthText(WholeSeconds::nearest(seconds), shortLength, translated);
}

std::string Formatters::loggedDuration(double seconds) {
    return lengthText(WholeSeconds::nearest(seconds), shortLength, originalWords);
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
    return lengthText(upwardFromZero(seconds), spelledLength, translated);
}

std::string Formatters::wholeSeconds(double seconds) {
    return std::to_string(WholeSeconds::roundedUp(seconds));
}

std::string Formatters::day(Date date, const Calendar& calendar) {
    return isoDay(calendar.civilTime(date).day);
}

} // namespace kestrelfen
