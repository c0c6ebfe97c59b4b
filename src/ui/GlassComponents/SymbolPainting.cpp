#include "ui/GlassComponents/SymbolPainting.hpp"

#include "ui/GlassComponents/SymbolDrawings.hpp"
#include "ui/GlassComponents/SymbolPath.hpp"

#include <QPainter>

namespace kestrelfen {

void paintSymbol(QPainter& painter, std::string_view name, const QRectF& box, const SymbolLook& look) {
    const SymbolDrawing* const drawing = symbolDrawing(name);
    if (!drawing) {
        return;
    }
    const double scale = box.width() / SymbolDrawing::field;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.topLeft());
    painter.scale(scale, scale);
    painter.fillPath(symbolPath(drawing->dots), look.tint);
    painter.strokePath(symbolPath(drawing->strokes),
                       QPen(look.tint, look.stroke / scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

} // namespace kestrelfen
