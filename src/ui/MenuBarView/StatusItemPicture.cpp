#include "ui/MenuBarView/StatusItemPicture.hpp"

#include <QPainter>
#include <QPainterPath>

namespace kestrelfen {

namespace {

// All symbols are drawn on a field of 24 by 24 with one stroke weight.
constexpr double field = 24.0;
constexpr double stroke = 2.0;

/// Legible on light and on dark panels alike.
const QColor calm(0x1F, 0xA8, 0x93);
const QColor warning(0xC9, 0x86, 0x2E);
const QColor quiet(0x86, 0x99, 0xA1);

QPainterPath lids() {
    QPainterPath path(QPointF(2.25, 12));
    path.cubicTo(4.40, 7.70, 7.90, 5.25, 12, 5.25);
    path.cubicTo(16.10, 5.25, 19.60, 7.70, 21.75, 12);
    path.cubicTo(19.60, 16.30, 16.10, 18.75, 12, 18.75);
    path.cubicTo(7.90, 18.75, 4.40, 16.30, 2.25, 12);
    return path;
}

QPainterPath eye() {
    QPainterPath path = lids();
    path.addEllipse(QPointF(12, 12), 3.25, 3.25);
    return path;
}

void drawEye(QPainter& painter, const QColor& color) {
    painter.setPen(QPen(color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(eye());
}

void drawStruckEye(QPainter& painter) {
    drawEye(painter, calm);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setPen(QPen(Qt::black, stroke * 2.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(4, 3.5), QPointF(20, 20.5));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(calm, stroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(4, 3.5), QPointF(20, 20.5));
}

void drawWarningEye(QPainter& painter) {
    drawEye(painter, warning);
    QPainterPath badge;
    badge.addPolygon(QPolygonF({QPointF(18, 12.4), QPointF(23.2, 21.8), QPointF(12.8, 21.8)}));
    badge.closeSubpath();
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillPath(badge, Qt::black);
    painter.strokePath(badge, QPen(Qt::black, stroke * 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.strokePath(badge, QPen(warning, stroke * 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setPen(QPen(warning, stroke * 0.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(18, 15.6), QPointF(18, 18));
    painter.drawPoint(QPointF(18, 20));
}

void drawPause(QPainter& painter) {
    painter.setPen(QPen(quiet, stroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    painter.drawLine(QPointF(9.7, 8.9), QPointF(9.7, 15.1));
    painter.drawLine(QPointF(14.3, 8.9), QPointF(14.3, 15.1));
}

} // namespace

QImage statusItemPicture(std::string_view symbol, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / field, size / field);
    if (symbol == "eye") {
        drawEye(painter, calm);
    } else if (symbol == "eye.slash") {
        drawStruckEye(painter);
    } else if (symbol == "eye.trianglebadge.exclamationmark") {
        drawWarningEye(painter);
    } else if (symbol == "pause.circle") {
        drawPause(painter);
    }
    return image;
}

} // namespace kestrelfen
