#include "ui/GlassComponents/Halo.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrelfen {

namespace {

constexpr double greatestScale = 1.06;

/// Beyond this many times its blur the disc is as good as gone.
constexpr double reach = 2.6;

/// How much of a blurred edge is left `distance` outside of it.
double falloff(double distance, double sigma) {
    return std::erfc(distance / (sigma * std::numbers::sqrt2)) / 2.0;
}

/// Entries of a table of shades for each pixel of distance.
constexpr int finesse = 4;

} // namespace

Halo::Halo(QQuickItem* parent) : PictureItem(parent) {
    timer_.setSingleShot(true);
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

void Halo::setLegSeconds(double seconds) {
    legSeconds_ = seconds;
    restart();
    emit lookChanged();
}

void Halo::setBreathing(bool breathing) {
    if (breathing == isBreathing_) {
        return;
    }
    isBreathing_ = breathing;
    restart();
    emit lookChanged();
}

void Halo::restart() {
    timer_.stop();
    steps_.clear();
    if (growth_ != 0) {
        growth_ = 0;
        remake();
    }
    if (isBreathing_ && diameter_ > 0) {
        steps_ = breathSteps(implicitWidth() * (greatestScale - 1.0), legSeconds_);
        step_ = 0;
        timer_.start(steps_[1].milliseconds);
    }
}

void Halo::fit() {
    setImplicitSize(diameter_ + 2 * reach * blur_, diameter_ + 2 * reach * blur_);
    remake();
    restart();
}

void Halo::breathe() {
    ++step_;
    if (steps_[step_].growth != growth_) {
        growth_ = steps_[step_].growth;
        remake();
    }
    if (step_ + 1 == steps_.size()) {
        step_ = 0;
    }
    timer_.start(steps_[step_ + 1].milliseconds - steps_[step_].milliseconds);
}

QRectF Halo::pictureRect() const {
    const double half = growth_ / 2.0;
    return boundingRect().adjusted(-half, -half, half, half);
}

/// The shades from the centre outwards, `finesse` to a device pixel.
std::vector<QRgb> Halo::shades(double farthest, double scale) const {
    const double edge = diameter_ / 2.0 * scale;
    const double sigma = blur_ * scale;
    std::vector<QRgb> shades(static_cast<std::size_t>(farthest * finesse) + 2);
    for (std::size_t place = 0; place < shades.size(); ++place) {
        const double distance = (static_cast<double>(place) + 0.5) / finesse - edge;
        const double alpha = 255.0 * static_cast<double>(tint_.alphaF()) * falloff(distance, sigma);
        shades[place] = qPremultiply(
            qRgba(tint_.red(), tint_.green(), tint_.blue(), static_cast<int>(std::lround(alpha))));
    }
    return shades;
}

QImage Halo::makePicture(const QSizeF& /*size*/, double ratio) const {
    const QSizeF size = pictureRect().size();
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    const int last = image.width() - 1;
    const double centre = image.width() / 2.0;
    const std::vector<QRgb> shadeAt =
        shades(centre * std::numbers::sqrt2, ratio * size.width() / std::max(1.0, width()));
    for (int y = 0; y <= last / 2; ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x <= last / 2; ++x) {
            const double distance =
                std::sqrt((x + 0.5 - centre) * (x + 0.5 - centre) + (y + 0.5 - centre) * (y + 0.5 - centre));
            line[x] = line[last - x] = shadeAt[static_cast<std::size_t>(distance * finesse)];
        }
        std::copy(line, line + last + 1, reinterpret_cast<QRgb*>(image.scanLine(last - y)));
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace kestrelfen
