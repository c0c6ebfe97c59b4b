#pragma once

#include <string>
#include <string_view>

namespace kestrelfen {

/// `text` without the white space and the line ends at its two ends, those of Unicode included.
std::string trimmedTitle(std::string_view text);

} // namespace kestrelfen
