#include "platform/posix/PreferenceJson.hpp"

#include "base/CivilTime.hpp"
#include "platform/posix/Base64.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>

namespace kestrelfen {

namespace {

using Json = nlohmann::json;
using MaybeValue = std::optional<PreferenceValue>;

constexpr const char* dateMarker = "$date";
constexpr const char* dataMarker = "$data";
constexpr const char* dictionaryMarker = "$dictionary";

constexpr int indentation = 2;
constexpr int fractionDigits = 6;

bool isMarker(const std::string& key) {
    return key == dateMarker || key == dataMarker || key == dictionaryMarker;
}

bool areStrings(const Json& collection) {
    return std::all_of(collection.begin(), collection.end(),
                       [](const Json& element) { return element.is_string(); });
}

std::optional<std::int64_t> integerFrom(const Json& json) {
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    const bool fits =
        json.is_number_integer() && (!json.is_number_unsigned() || json.get<std::uint64_t>() <= largest);
    return fits ? std::optional(json.get<std::int64_t>()) : std::nullopt;
}

MaybeValue dateFrom(const Json& json) {
    if (json.is_string()) {
        const auto date = parseIsoTime(json.get_ref<const std::string&>());
        return date ? MaybeValue(*date) : std::nullopt;
    }
    const auto microseconds = integerFrom(json);
    return microseconds ? MaybeValue(Date::fromMicroseconds(*microseconds)) : std::nullopt;
}

MaybeValue dataFrom(const Json& json) {
    const auto bytes = json.is_string() ? parseBase64(json.get_ref<const std::string&>()) : std::nullopt;
    return bytes ? MaybeValue(*bytes) : std::nullopt;
}

MaybeValue dictionaryFrom(const Json& json) {
    return json.is_object() && areStrings(json) ? MaybeValue(json.get<PreferenceDictionary>()) : std::nullopt;
}

MaybeValue fromObject(const Json& json) {
    if (json.size() != 1 || !isMarker(json.begin().key())) {
        return dictionaryFrom(json);
    }
    const std::string& marker = json.begin().key();
    const Json& content = json.begin().value();
    if (marker == dateMarker) {
        return dateFrom(content);
    }
    return marker == dataMarker ? dataFrom(content) : dictionaryFrom(content);
}

MaybeValue fromArray(const Json& json) {
    return areStrings(json) ? MaybeValue(json.get<PreferenceStrings>()) : std::nullopt;
}

MaybeValue fromInteger(const Json& json) {
    const auto number = integerFrom(json);
    return number ? MaybeValue(*number) : std::nullopt;
}

/// The parser makes a real number of an integer that is too large.
MaybeValue fromReal(const Json& json, std::string_view text) {
    const bool isReal = text.find_first_of(".eE") != std::string_view::npos;
    return isReal ? MaybeValue(json.get<double>()) : std::nullopt;
}

Json marked(const char* marker, Json content) {
    Json json = Json::object();
    json[marker] = std::move(content);
    return json;
}

/// Builds the JSON of a value.
struct ToJson {
    Json operator()(Date date) const {
        constexpr Date begin = Date::fromSeconds(-62'167'219'200); // 0000-01-01
        constexpr Date end = Date::fromSeconds(253'402'300'800);   // 10000-01-01
        if (date < begin || date >= end) {
            return marked(dateMarker, date.microseconds());
        }
        return marked(dateMarker, isoTime(date, fractionDigits));
    }

    Json operator()(const PreferenceData& data) const { return marked(dataMarker, base64(data)); }

    Json operator()(const PreferenceDictionary& dictionary) const {
        const bool looksMarked = dictionary.size() == 1 && isMarker(dictionary.begin()->first);
        return looksMarked ? marked(dictionaryMarker, dictionary) : Json(dictionary);
    }

    template <typename Plain>
    Json operator()(const Plain& value) const {
        return value;
    }
};

} // namespace

std::optional<PreferenceValue> preferenceFromJson(std::string_view text) {
    const Json json = Json::parse(text, nullptr, false);
    switch (json.type()) {
    case Json::value_t::boolean:
        return json.get<bool>();
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return fromInteger(json);
    case Json::value_t::number_float:
        return fromReal(json, text);
    case Json::value_t::string:
        return json.get<std::string>();
    case Json::value_t::array:
        return fromArray(json);
    case Json::value_t::object:
        return fromObject(json);
    case Json::value_t::null:
    case Json::value_t::binary:
    case Json::value_t::discarded:
        return std::nullopt;
    }
    return std::nullopt;
}

std::string jsonFromPreference(const PreferenceValue& value) {
    return std::visit(ToJson(), value).dump(indentation);
}

std::string jsonFromText(const std::string& text) {
    return Json(text).dump();
}

std::string textFromJson(std::string_view text) {
    return Json::parse(text).get<std::string>();
}

} // namespace kestrelfen
