#pragma once

#include <string_view>

namespace kestrelfen {

/// What to show for a text of the contents. A few of them name the Mac or its technologies; elsewhere another
/// sentence is shown, that says what is true there. Any other text is shown as it is.
std::string_view worded(std::string_view text);

} // namespace kestrelfen
