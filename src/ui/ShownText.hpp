#pragma once

#include "ui/Wording.hpp"

#include <QString>

#include <optional>
#include <string>

namespace kestrelfen {

/// A text of the contents as the views show it on this system.
inline QString shownText(std::string_view text) {
    const std::string_view words = worded(text);
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

/// Empty for none.
inline QString shownText(const std::optional<std::string>& text) {
    return text ? shownText(std::string_view(*text)) : QString();
}

} // namespace kestrelfen
