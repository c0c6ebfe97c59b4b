#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// The words of one line, split at blanks; a word in double quotes keeps its blanks and knows \", \\ and \n.
/// Empty for a blank line and for one whose first character other than a blank is '#'. Throws a
/// ScenarioError.
std::vector<std::string> splitWords(std::string_view line);

} // namespace kestrelfen
