#include "ui/GlassComponents/Disc.hpp"

#include <QPainter>

namespace kestrelfen {

Disc::Disc(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &Disc::lookChanged, this, [this] { update(); });
}

void Disc::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(tint_);
    painter->drawEllipse(QPointF(width() / 2, height() / 2), diameter_ / 2, diameter_ / 2);
}

} // namespace kestrelfen
