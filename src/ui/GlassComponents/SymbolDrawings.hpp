#pragma once

#include <span>
#include <string_view>

namespace kestrelfen {

/// One drawing of the set, on a field of 24 by 24, in the path language of SVG.
struct SymbolDrawing {
    static constexpr double field = 24.0;

    std::string_view name;
    /// Drawn with round caps and joins.
    std::string_view strokes;
    /// Filled.
    std::string_view dots;
};

/// The whole set. Any thread.
std::span<const SymbolDrawing> symbolDrawings();

/// Null for a name that is not in the set.
const SymbolDrawing* symbolDrawing(std::string_view name);

} // namespace kestrelfen
