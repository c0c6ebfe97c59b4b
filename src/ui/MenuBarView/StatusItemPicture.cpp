#include "ui/MenuBarView/StatusItemPicture.hpp"

#include "ui/GlassComponents/SymbolDrawings.hpp"
#include "ui/GlassComponents/SymbolPainting.hpp"

#include <QPainter>

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr QColor darkLine(0x1B, 0x2A, 0x30);
constexpr QColor lightLine(0xF2, 0xF7, 0xF7);

constexpr QColor calm(0x14, 0x8A, 0x79);
constexpr QColor warning(0xAA, 0x6C, 0x1B);
constexpr QColor quiet(0x6C, 0x80, 0x89);

/// Panels show symbols smaller than texts do, among other icons: somewhat stronger than the set's own.
constexpr double stroke = 1.75;
constexpr double thinnestStroke = 1.25;

} // namespace

QColor statusItemColor(std::string_view symbol, PanelShade shade) {
    switch (shade) {
    case PanelShade::light:
        return darkLine;
    case PanelShade::dark:
        return lightLine;
    case PanelShade::unknown:
        break;
    }
    if (symbol == "eye.trianglebadge.exclamationmark") {
        return warning;
    }
    return symbol == "pause.circle" ? quiet : calm;
}

QImage statusItemPicture(std::string_view symbol, int size, PanelShade shade) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(
        painter, symbol, QRectF(0, 0, size, size),
        {statusItemColor(symbol, shade), std::max(stroke * size / SymbolDrawing::field, thinnestStroke)});
    return image;
}

} // namespace kestrelfen
