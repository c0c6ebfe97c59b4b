#pragma once

#include <string>
#include <string_view>

namespace kestrelfen {

class BreakEngine;

/// What the status item shows at one moment.
struct StatusItemContent {
    std::string_view symbol;
    std::string text;
    /// One line, for a pointer that rests on the item.
    std::string tooltip;

    static StatusItemContent of(const BreakEngine& engine);

    friend bool operator==(const StatusItemContent&, const StatusItemContent&) = default;
};

} // namespace kestrelfen
