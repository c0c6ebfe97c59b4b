#include "Json.hpp"

#include "base/CivilTime.hpp"
#include "base/ParsedNumber.hpp"

#include <cmath>

namespace kestrelfen {

namespace {

constexpr double tolerance = 1e-6;

/// The keys and indices that are left; absent at the end of a path.
using Rest = std::optional<std::string_view>;

Json valueBehind(const Json& json, Rest path);

/// The part of `path` behind its first `length` characters and the dot that follows them.
Rest behind(std::string_view path, std::size_t length) {
    return length < path.size() ? Rest(path.substr(length + 1)) : std::nullopt;
}

Json valueInObject(const Json& object, std::string_view path) {
    for (std::size_t length = path.size();; length = path.rfind('.', length - 1)) {
        if (length == std::string_view::npos) {
            return nullptr;
        }
        const auto found = object.find(std::string(path.substr(0, length)));
        if (found != object.end()) {
            return valueBehind(*found, behind(path, length));
        }
        if (length == 0) {
            return nullptr;
        }
    }
}

Json valueInList(const Json& list, std::string_view path) {
    const std::string_view word = path.substr(0, path.find('.'));
    if (path == "count") {
        return list.size();
    }
    const auto index = parsedNumber<std::size_t>(word);
    return index && *index < list.size() ? valueBehind(list[*index], behind(path, word.size())) : nullptr;
}

Json valueBehind(const Json& json, Rest path) {
    return path ? valueAt(json, *path) : json;
}

} // namespace

Json jsonOf(Date date) {
    return isoTime(date, 3);
}

template <>
Json jsonOf(const std::optional<Date>& date) {
    return date ? jsonOf(*date) : Json(nullptr);
}

std::string lineOf(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json valueAt(const Json& json, std::string_view path) {
    if (json.is_object()) {
        return valueInObject(json, path);
    }
    return json.is_array() ? valueInList(json, path) : Json(nullptr);
}

bool matches(const Json& actual, const std::string& expected) {
    if (actual.is_number()) {
        const auto number = parsedNumber<double>(expected);
        return number &&
               (*number == actual.get<double>() || std::abs(*number - actual.get<double>()) <= tolerance);
    }
    return wordOf(actual) == expected;
}

std::string wordOf(const Json& actual) {
    return actual.is_string() ? actual.get<std::string>() : lineOf(actual);
}

} // namespace kestrelfen
