#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// The words of a desktop entry's Exec line, without the places for files and the like. Empty when the line
/// breaks the rules of quoting.
std::vector<std::string> execWords(std::string_view line);

/// The name, without its folder, of the program that these words are about: not of what only starts it.
/// Empty for words that start a program by a language's interpreter or by its id in a sandbox.
std::string executableName(const std::vector<std::string>& words);

} // namespace kestrelfen
