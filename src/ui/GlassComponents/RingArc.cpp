#include "ui/GlassComponents/RingArc.hpp"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrelfen {

namespace {

constexpr int sweepMilliseconds = 1000;
constexpr int mostFrames = 10;

/// The least that keeps the round cap in sight at the end of a phase.
constexpr double leastShown = 0.0001;

/// Of the circle: the end of a shorter way bulges less than its line is wide.
constexpr double longestStep = 0.05;

constexpr int top = 90 * 16;
constexpr double fullCircle = 360 * 16;

} // namespace

RingArc::RingArc(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(&timer_, &QTimer::timeout, this, &RingArc::sweep);
}

void RingArc::setRemaining(double remaining) {
    const double target = std::clamp(remaining, leastShown, 1.0);
    if (isSet_ && target == target_) {
        return;
    }
    from_ = isSet_ && !isStill_ ? shown_ : target;
    isSet_ = true;
    target_ = target;
    frame_ = 0;
    frames_ = framesFor(std::abs(target_ - from_));
    timer_.start(sweepMilliseconds / frames_);
    sweep();
    emit remainingChanged();
}

int RingArc::framesFor(double distance) const {
    const double pixels = distance * std::numbers::pi * width();
    return std::clamp(static_cast<int>(std::ceil(pixels)), 1, mostFrames);
}

void RingArc::sweep() {
    ++frame_;
    if (frame_ >= frames_) {
        timer_.stop();
    }
    const double before = shown_;
    shown_ = from_ + (target_ - from_) * std::min(1.0, static_cast<double>(frame_) / frames_);
    update(partBetween(before, shown_));
}

/// Where the end of the arc has been, with its round cap; all of it after a leap.
QRect RingArc::partBetween(double before, double after) const {
    if (std::abs(after - before) > longestStep) {
        return boundingRect().toAlignedRect();
    }
    const double radius = (width() - lineWidth_) / 2;
    const auto end = [&](double share) {
        const double angle = share * 2 * std::numbers::pi;
        return QPointF(width() / 2 + radius * std::sin(angle), height() / 2 - radius * std::cos(angle));
    };
    QRectF part(end(before), QSizeF());
    for (const double share : {(before + after) / 2, after}) {
        const QPointF place = end(share);
        part.setLeft(std::min(part.left(), place.x()));
        part.setRight(std::max(part.right(), place.x()));
        part.setTop(std::min(part.top(), place.y()));
        part.setBottom(std::max(part.bottom(), place.y()));
    }
    const double room = lineWidth_ / 2 + 2;
    return part.adjusted(-room, -room, room, room).toAlignedRect() & boundingRect().toAlignedRect();
}

void RingArc::setLineWidth(double width) {
    lineWidth_ = width;
    update();
    emit lookChanged();
}

void RingArc::setStill(bool isStill) {
    isStill_ = isStill;
    emit lookChanged();
}

void RingArc::setTrack(const QColor& color) {
    track_ = color;
    update();
    emit lookChanged();
}

void RingArc::setTint(const QColor& color) {
    tint_ = color;
    update();
    emit lookChanged();
}

void RingArc::paint(QPainter* painter) {
    const double inset = lineWidth_ / 2;
    const QRectF circle = QRectF(0, 0, width(), height()).adjusted(inset, inset, -inset, -inset);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(track_, lineWidth_));
    painter->drawEllipse(circle);
    painter->setPen(QPen(tint_, lineWidth_, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(circle, top, -static_cast<int>(std::lround(std::max(shown_, leastShown) * fullCircle)));
}

} // namespace kestrelfen
