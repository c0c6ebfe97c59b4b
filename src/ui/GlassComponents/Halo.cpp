#include "ui/GlassComponents/Halo.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrelfen {

namespace {

constexpr double greatestScale = 1.06;
constexpr int frameMilliseconds = 33;

/// Beyond this many times its blur the disc is as good as gone.
constexpr double reach = 1.3;

double easeInOut(double share) {
    return (1.0 - std::cos(share * std::numbers::pi)) / 2.0;
}

/// How much of a blurred edge is left `distance` outside of it.
double falloff(double distance, double sigma) {
    return std::erfc(distance / (sigma * std::numbers::sqrt2)) / 2.0;
}

} // namespace

Halo::Halo(QQuickItem* parent) : PictureItem(parent) {
    timer_.setInterval(frameMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &Halo::breathe);
    fit();
}

void Halo::setTint(const QColor& color) {
    tint_ = color;
    remake();
    emit lookChanged();
}

void Halo::setDiameter(double diameter) {
    diameter_ = diameter;
    fit();
    emit lookChanged();
}

void Halo::setBlur(double blur) {
    blur_ = blur;
    fit();
    emit lookChanged();
}

void Halo::setBreathing(bool breathing) {
    if (breathing == timer_.isActive()) {
        return;
    }
    frame_ = 0;
    breathing ? timer_.start() : timer_.stop();
    emit lookChanged();
}

void Halo::fit() {
    setImplicitSize(diameter_ + 2 * reach * blur_, diameter_ + 2 * reach * blur_);
    remake();
}

void Halo::breathe() {
    ++frame_;
    const double legs = frame_ * frameMilliseconds / (legSeconds_ * 1000.0);
    const double leg = std::floor(legs);
    const double share = std::fmod(leg, 2.0) == 0.0 ? legs - leg : 1.0 - (legs - leg);
    const double wanted = width() * (greatestScale - 1.0) * easeInOut(share);
    const int growth = 2 * static_cast<int>(std::lround(wanted / 2.0));
    if (growth != growth_) {
        growth_ = growth;
        update();
    }
}

QRectF Halo::pictureRect() const {
    const double half = growth_ / 2.0;
    return boundingRect().adjusted(-half, -half, half, half);
}

QImage Halo::makePicture(const QSizeF& size, double ratio) const {
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    const double centre = image.width() / 2.0;
    const double edge = diameter_ / 2.0 * ratio;
    const double sigma = blur_ / 2.0 * ratio;
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double distance = std::hypot(x + 0.5 - centre, y + 0.5 - centre) - edge;
            const double alpha = 255.0 * static_cast<double>(tint_.alphaF()) * falloff(distance, sigma);
            line[x] = qPremultiply(
                qRgba(tint_.red(), tint_.green(), tint_.blue(), static_cast<int>(std::lround(alpha))));
        }
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace kestrelfen
