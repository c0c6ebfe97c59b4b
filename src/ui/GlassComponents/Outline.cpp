#include "ui/GlassComponents/Outline.hpp"

#include <QPainter>

namespace kestrelfen {

Outline::Outline(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &Outline::lookChanged, this, [this] { update(); });
}

void Outline::paint(QPainter* painter) {
    const double inset = lineWidth_ / 2;
    const double radius = radius_ - inset;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(tint_, lineWidth_));
    painter->drawRoundedRect(QRectF(0, 0, width(), height()).adjusted(inset, inset, -inset, -inset), radius,
                             radius);
}

} // namespace kestrelfen
