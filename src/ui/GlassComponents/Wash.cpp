#include "ui/GlassComponents/Wash.hpp"

#include <QPainter>
#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace kestrelfen {

namespace {

constexpr QPointF gradientStart(0.25, 0.07);
constexpr QPointF gradientEnd(0.75, 0.93);
constexpr float middleStop = 0.55F;
constexpr std::size_t steps = 1024;

/// Red, green and blue in 1/65536 of a step of 8 bits.
using Shade = std::array<std::uint32_t, 3>;

QColor mixed(const QColor& from, const QColor& to, float share) {
    return QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * share,
                            from.greenF() + (to.greenF() - from.greenF()) * share,
                            from.blueF() + (to.blueF() - from.blueF()) * share);
}

QColor under(const QColor& base, const QColor& veil) {
    return mixed(base, QColor::fromRgbF(veil.redF(), veil.greenF(), veil.blueF()), veil.alphaF());
}

Shade shadeOf(const QColor& color) {
    const auto fixed = [](float channel) { return static_cast<std::uint32_t>(channel * 255.0F * 65536.0F); };
    return {fixed(color.redF()), fixed(color.greenF()), fixed(color.blueF())};
}

/// A cheap, even noise: the same picture each time.
std::uint32_t noise(std::uint32_t& state) {
    state ^= state << 13U;
    state ^= state >> 17U;
    state ^= state << 5U;
    return state;
}

QRgb pixel(const Shade& shade, std::uint32_t dither) {
    const std::uint32_t offset = dither & 0xFFFFU;
    const auto channel = [offset](std::uint32_t value) { return std::min((value + offset) >> 16U, 255U); };
    return 0xFF000000U | (channel(shade[0]) << 16U) | (channel(shade[1]) << 8U) | channel(shade[2]);
}

/// The same picture with round corners.
QImage cut(const QImage& picture, double radius) {
    QImage result(picture.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(picture);
    painter.drawRoundedRect(result.rect(), radius, radius);
    return result;
}

} // namespace

Wash::Latest& Wash::latest() {
    static Latest latest;
    return latest;
}

Wash::Wash(QQuickItem* parent) : PictureItem(parent) {
    ++latest().users;
}

Wash::~Wash() {
    if (--latest().users == 0) {
        latest().picture = {};
    }
}

void Wash::setRadius(double radius) {
    radius_ = radius;
    remake();
    emit lookChanged();
}

void Wash::take(QColor& member, const QColor& color) {
    member = color;
    remake();
    emit lookChanged();
}

/// The windows of one break differ in nothing: they share a picture.
QImage Wash::makePicture(const QSizeF& size, double ratio) const {
    const Look look{(size * ratio).toSize(), ratio, {first_, second_, third_, blur_, veil_}, radius_};
    Latest& latest = Wash::latest();
    if (latest.picture.isNull() || !(look == latest.look)) {
        latest.picture = paint(size, ratio);
        latest.look = look;
    }
    return latest.picture;
}

QImage Wash::paint(const QSizeF& size, double ratio) const {
    std::vector<Shade> shades(steps + 1);
    for (std::size_t step = 0; step <= steps; ++step) {
        const float place = static_cast<float>(step) / steps;
        const QColor base = place < middleStop
                                ? mixed(first_, second_, place / middleStop)
                                : mixed(second_, third_, (place - middleStop) / (1.0F - middleStop));
        shades[step] = shadeOf(under(under(base, blur_), veil_));
    }
    QImage image((size * ratio).toSize(), QImage::Format_RGB32);
    const QPointF start(gradientStart.x() * image.width(), gradientStart.y() * image.height());
    const QPointF axis(gradientEnd.x() * image.width() - start.x(),
                       gradientEnd.y() * image.height() - start.y());
    const double scale = steps / QPointF::dotProduct(axis, axis);
    std::uint32_t state = 0x9E3779B9U;
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        double place = ((0.5 - start.x()) * axis.x() + (y + 0.5 - start.y()) * axis.y()) * scale;
        for (int x = 0; x < image.width(); ++x, place += axis.x() * scale) {
            line[x] =
                pixel(shades[static_cast<std::size_t>(std::clamp(place, 0.0, double{steps}))], noise(state));
        }
    }
    if (radius_ > 0) {
        image = cut(image, radius_ * ratio);
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace kestrelfen
