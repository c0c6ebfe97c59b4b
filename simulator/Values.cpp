#include "Values.hpp"

#include "ScenarioError.hpp"
#include "base/ParsedNumber.hpp"

#include <cmath>
#include <optional>

namespace kestrelfen {

namespace {

bool areDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<std::int64_t> decimalMicroseconds(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    text.remove_prefix(negative ? 1 : 0);
    const std::size_t point = text.find('.');
    std::string fraction(point == std::string_view::npos ? "0" : text.substr(point + 1));
    const std::string_view whole = text.substr(0, point);
    if (!areDigits(whole) || !areDigits(fraction)) {
        return std::nullopt;
    }
    if (fraction.find_last_not_of('0') != std::string::npos && fraction.find_last_not_of('0') >= 6) {
        return std::nullopt;
    }
    fraction.resize(6, '0');
    return parsedNumber<std::int64_t>((negative ? "-" : "") + std::string(whole) + fraction);
}

} // namespace

std::string quoted(const std::string& word) {
    return "\"" + word + "\"";
}

std::int64_t microsecondsOf(const std::string& word) {
    if (const auto microseconds = decimalMicroseconds(word)) {
        return *microseconds;
    }
    throw ScenarioError(quoted(word) + " is not a decimal number of seconds to the microsecond");
}

double secondsOf(const std::string& word) {
    return Date::fromMicroseconds(microsecondsOf(word)) - Date();
}

double realOf(const std::string& word) {
    const auto number = parsedNumber<double>(word);
    if (number && std::isfinite(*number)) {
        return *number;
    }
    throw ScenarioError(quoted(word) + " is not a number");
}

std::int64_t integerOf(const std::string& word) {
    if (const auto number = parsedNumber<std::int64_t>(word)) {
        return *number;
    }
    throw ScenarioError(quoted(word) + " is not a whole number");
}

std::int64_t displayNumberOf(const std::string& word) {
    constexpr std::int64_t last = 1'000;
    const std::int64_t number = integerOf(word);
    if (number < 0 || number > last) {
        throw ScenarioError(quoted(word) + " is no display from 0 to " + std::to_string(last));
    }
    return number;
}

bool booleanOf(const std::string& word) {
    if (word == "true") {
        return true;
    }
    if (word == "false") {
        return false;
    }
    throw ScenarioError(quoted(word) + " is not true or false");
}

Date dateOf(const std::string& word) {
    if (const auto date = parseIsoTime(word)) {
        return *date;
    }
    throw ScenarioError(quoted(word) + " is not a date like 2026-03-09T08:00:00Z");
}

CivilDay dayOf(const std::string& word) {
    if (const auto day = parseIsoDay(word)) {
        return *day;
    }
    throw ScenarioError(quoted(word) + " is not a day like 2026-03-09");
}

} // namespace kestrelfen
