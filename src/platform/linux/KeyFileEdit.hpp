#pragma once

#include <string>
#include <string_view>

namespace kestrelfen {

/// A key file's text with that key set to the raw `value` in its first group of that name; all else stays as
/// it is. Unchanged when it has no such group.
std::string withKey(std::string_view text, std::string_view group, std::string_view key,
                    std::string_view value);

/// The text without the lines of that key in its first group of that name.
std::string withoutKey(std::string_view text, std::string_view group, std::string_view key);

} // namespace kestrelfen
