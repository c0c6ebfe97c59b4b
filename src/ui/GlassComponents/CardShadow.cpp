#include "ui/GlassComponents/CardShadow.hpp"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrelfen {

namespace {

/// How far a point lies outside a rounded rectangle; negative inside.
double distanceOutside(const QPointF& point, const QRectF& rect, double radius) {
    const double x = std::abs(point.x() - rect.center().x()) - rect.width() / 2 + radius;
    const double y = std::abs(point.y() - rect.center().y()) - rect.height() / 2 + radius;
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
}

} // namespace

void CardShadow::setCard(const QRectF& card) {
    card_ = card;
    remake();
    emit lookChanged();
}

void CardShadow::setTint(const QColor& tint) {
    tint_ = tint;
    remake();
    emit lookChanged();
}

QImage CardShadow::makePicture(const QSizeF& size, double ratio) const {
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    const QRectF caster = card_.translated(0, drop_);
    const double sigma = blur_ / 2.0;
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QPointF point((x + 0.5) / ratio, (y + 0.5) / ratio);
            const double share =
                std::erfc(distanceOutside(point, caster, radius_) / (sigma * std::numbers::sqrt2)) / 2;
            line[x] = qPremultiply(qRgba(tint_.red(), tint_.green(), tint_.blue(),
                                         static_cast<int>(std::lround(255 * strength_ * share))));
        }
    }
    QPainterPath card;
    card.addRoundedRect(QRectF(card_.topLeft() * ratio, card_.size() * ratio), radius_ * ratio,
                        radius_ * ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(card, Qt::black);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace kestrelfen
