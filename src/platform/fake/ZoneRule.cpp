#include "platform/fake/ZoneRule.hpp"

#include <charconv>
#include <chrono>

namespace kestrelfen {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;

bool takeCharacter(std::string_view& text, char character) {
    if (!text.starts_with(character)) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

bool takeNumber(std::string_view& text, int& number) {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc() || number < 0) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return true;
}

/// Takes "CET" or "<+03>".
bool takeName(std::string_view& text) {
    const auto isLetter = [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
    };
    std::size_t length = 0;
    if (text.starts_with('<')) {
        const std::size_t close = text.find('>');
        length = close == std::string_view::npos ? 0 : close + 1;
    } else {
        while (length < text.size() && isLetter(text[length])) {
            ++length;
        }
    }
    text.remove_prefix(length);
    return length >= 3;
}

/// Takes "[+-]hours[:minutes[:seconds]]" as seconds.
std::optional<std::int64_t> takeDuration(std::string_view& text) {
    const bool isNegative = takeCharacter(text, '-');
    if (!isNegative) {
        takeCharacter(text, '+');
    }
    std::int64_t seconds = 0;
    for (const int unit : {3'600, 60, 1}) {
        int number = 0;
        if (unit != 3'600 && !takeCharacter(text, ':')) {
            break;
        }
        if (!takeNumber(text, number)) {
            return std::nullopt;
        }
        seconds += std::int64_t{number} * unit;
    }
    return isNegative ? -seconds : seconds;
}

} // namespace

std::optional<ZoneRule> ZoneRule::parse(std::string_view text) {
    ZoneRule rule;
    if (!takeName(text)) {
        return std::nullopt;
    }
    const auto west = takeDuration(text);
    if (!west) {
        return std::nullopt;
    }
    rule.offset_ = -*west;
    if (!text.empty()) {
        rule.summer_ = takeSummer(text, rule.offset_);
        if (!rule.summer_ || !text.empty()) {
            return std::nullopt;
        }
    }
    return rule;
}

std::optional<ZoneRule::Summer> ZoneRule::takeSummer(std::string_view& text, std::int64_t standardOffset) {
    if (!takeName(text)) {
        return std::nullopt;
    }
    Summer summer;
    summer.offset = standardOffset + 3'600;
    if (!text.starts_with(',')) {
        const auto west = takeDuration(text);
        if (!west) {
            return std::nullopt;
        }
        summer.offset = -*west;
    }
    const auto begin = YearlyTime::take(text);
    const auto end = YearlyTime::take(text);
    if (!begin || !end) {
        return std::nullopt;
    }
    summer.begin = *begin;
    summer.end = *end;
    return summer;
}

/// Takes ",M3.5.0/2", ",J60" or ",59/26:30".
std::optional<ZoneRule::YearlyTime> ZoneRule::YearlyTime::take(std::string_view& text) {
    YearlyTime time;
    if (!takeCharacter(text, ',') || !time.takeDate(text)) {
        return std::nullopt;
    }
    if (takeCharacter(text, '/')) {
        const auto second = takeDuration(text);
        if (!second) {
            return std::nullopt;
        }
        time.secondOfDay = *second;
    }
    return time;
}

bool ZoneRule::YearlyTime::takeDate(std::string_view& text) {
    if (takeCharacter(text, 'M')) {
        kind = Kind::weekdayOfMonth;
        return takeNumber(text, month) && month >= 1 && month <= 12 && takeCharacter(text, '.') &&
               takeNumber(text, week) && week >= 1 && week <= 5 && takeCharacter(text, '.') &&
               takeNumber(text, day) && day <= 6;
    }
    kind = takeCharacter(text, 'J') ? Kind::dayWithoutLeapDay : Kind::dayFromZero;
    return takeNumber(text, day) && day <= 365 && (kind == Kind::dayFromZero || day >= 1);
}

std::int64_t ZoneRule::YearlyTime::secondIn(int year) const {
    using namespace std::chrono;
    const auto midnight = [](sys_days date) { return std::int64_t{date.time_since_epoch().count()}; };
    const auto firstDay = midnight(std::chrono::year(year) / January / 1);
    std::int64_t found = 0;
    switch (kind) {
    case Kind::weekdayOfMonth: {
        const auto inMonth = std::chrono::year(year) / std::chrono::month(static_cast<unsigned>(month));
        const auto weekday = std::chrono::weekday(static_cast<unsigned>(day));
        found = week == 5 ? midnight(inMonth / weekday[last])
                          : midnight(inMonth / weekday[static_cast<unsigned>(week)]);
        break;
    }
    case Kind::dayWithoutLeapDay:
        found = firstDay + day - 1 + (std::chrono::year(year).is_leap() && day >= 60 ? 1 : 0);
        break;
    case Kind::dayFromZero:
        found = firstDay + day;
        break;
    }
    return found * secondsPerDay + secondOfDay;
}

std::int64_t ZoneRule::offsetAt(std::int64_t second) const {
    if (!summer_) {
        return offset_;
    }
    const auto day = std::chrono::floor<std::chrono::days>(
        std::chrono::sys_time<std::chrono::seconds>(std::chrono::seconds(second + offset_)));
    const int year = static_cast<int>(std::chrono::year_month_day(day).year());
    const std::int64_t begin = summer_->begin.secondIn(year) - offset_;
    const std::int64_t end = summer_->end.secondIn(year) - summer_->offset;
    const bool isSummer = begin < end ? second >= begin && second < end : second >= begin || second < end;
    return isSummer ? summer_->offset : offset_;
}

} // namespace kestrelfen
