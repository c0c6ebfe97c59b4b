#include "ui/GlassComponents/TopEdge.hpp"

#include <QPainter>
#include <QPainterPath>

namespace kestrelfen {

TopEdge::TopEdge(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitHeight(1);
    setAntialiasing(true);
    connect(this, &TopEdge::lookChanged, this, [this] { update(); });
}

void TopEdge::paint(QPainter* painter) {
    QPainterPath card;
    card.addRoundedRect(QRectF(0, 0, width(), 4 * radius_), radius_, radius_);
    QPainterPath line;
    line.addRect(QRectF(inset_, 0, width() - 2 * inset_, height()));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(line.intersected(card), tint_);
}

} // namespace kestrelfen
