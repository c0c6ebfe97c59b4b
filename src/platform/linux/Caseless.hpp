#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace kestrelfen {

/// The names of programs are compared without case, by the letters of ASCII alone: the person's locale has no
/// say in it.
constexpr char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

inline std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char letter) { return lowered(letter); });
    return result;
}

constexpr bool areSameWithoutCase(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char left, char right) { return lowered(left) == lowered(right); });
}

} // namespace kestrelfen
