#pragma once

#include <string>
#include <string_view>

namespace kestrelfen {

bool isWellFormedUtf8(std::string_view text);

/// `text` itself when it is well-formed; otherwise with a replacement character (U+FFFD) in place of every
/// longest piece that begins a character without completing it, and of every other byte that belongs to none.
std::string wellFormedUtf8(std::string text);

} // namespace kestrelfen
