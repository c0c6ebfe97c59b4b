#pragma once

#include "base/Date.hpp"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

using Json = nlohmann::ordered_json;

/// "2026-03-09T08:00:00.000Z".
Json jsonOf(Date date);

/// What is absent is null.
template <typename Value>
Json jsonOf(const std::optional<Value>& value) {
    return value ? Json(*value) : Json(nullptr);
}

template <>
Json jsonOf(const std::optional<Date>& date);

/// One line, without a line feed.
std::string lineOf(const Json& json);

/// The value at a path of keys and indices between dots; null where it leads nowhere. `count` is a list's
/// length; a key may have dots itself: the longest that fits is taken.
Json valueAt(const Json& json, std::string_view path);

/// Whether `actual` is what the word `expected` stands for.
bool matches(const Json& actual, const std::string& expected);

/// `actual` as the words of a scenario have it.
std::string wordOf(const Json& actual);

} // namespace kestrelfen
