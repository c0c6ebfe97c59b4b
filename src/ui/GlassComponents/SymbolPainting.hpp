#pragma once

#include <QColor>
#include <QRectF>

#include <string_view>

class QPainter;

namespace kestrelfen {

/// How a symbol is to look.
struct SymbolLook {
    QColor tint;
    /// In the painter's units.
    double stroke = 1;
};

/// Draws the symbol of that name into the square `box`; nothing where the set has none. Any thread.
void paintSymbol(QPainter& painter, std::string_view name, const QRectF& box, const SymbolLook& look);

} // namespace kestrelfen
