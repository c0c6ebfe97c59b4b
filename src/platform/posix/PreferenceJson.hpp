#pragma once

#include "platform/ports/Preferences.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// The value that a JSON text stands for, or nothing where it is of a kind that preferences do not have:
/// null, a mixed array, a nested object, a number beyond the range of its type.
///
/// Plain JSON values are plain values: a number with a fraction or an exponent is real, another is an
/// integer; an array of strings is a list, an object of strings a dictionary. Three objects with a single
/// marker key are read otherwise: {"$date": "2026-03-09T08:00:00.000000Z"}, or with a number of microseconds
/// since 1970;
/// {"$data": "base64"}; {"$dictionary": {…}} for a dictionary that would look like one of these.
std::optional<PreferenceValue> preferenceFromJson(std::string_view text);

/// The text that reads back as exactly `value`, which must be storable; several lines where it is a
/// collection.
std::string jsonFromPreference(const PreferenceValue& value);

/// One JSON string.
std::string jsonFromText(const std::string& text);

/// The content of one JSON string.
std::string textFromJson(std::string_view text);

} // namespace kestrelfen
