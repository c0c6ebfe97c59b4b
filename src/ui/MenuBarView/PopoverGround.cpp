#include "ui/MenuBarView/PopoverGround.hpp"

#include <QPainter>
#include <QPainterPath>

namespace kestrelfen {

void PopoverGround::setRadius(double radius) {
    radius_ = radius;
    remake();
    emit radiusChanged();
}

QImage PopoverGround::makePicture(const QSizeF& size, double ratio) const {
    QImage wash = Wash::makePicture(size, ratio);
    wash.setDevicePixelRatio(1);
    QImage image(wash.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(), size), radius_, radius_);
    QBrush brush(wash);
    brush.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    painter.fillPath(outline, brush);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace kestrelfen
