#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// The raw values by their keys, as they stand in the first group of that name in a key file: the format of
/// desktop entries. Lines that are neither key and value nor a group's name are passed over; of two values
/// for one key the first holds.
std::map<std::string, std::string, std::less<>> keyFileGroup(std::string_view text, std::string_view group);

/// The name of the group that begins with this line, which has no blanks around it; absent for any other
/// line.
std::optional<std::string_view> keyFileGroupName(std::string_view line);

/// A string value without its escapes.
std::string unescapedValue(std::string_view value);

} // namespace kestrelfen
