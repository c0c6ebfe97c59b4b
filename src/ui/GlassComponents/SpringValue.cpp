#include "ui/GlassComponents/SpringValue.hpp"

#include "ui/GlassComponents/Appearance.hpp"

#include <cmath>
#include <numbers>

namespace kestrelfen {

namespace {

/// The swing is over when this share of the way is left.
constexpr double goodAsThere = 0.001;

} // namespace

SpringValue::SpringValue(QObject* parent) : QObject(parent) {
    time_.setStartValue(0.0);
    connect(&time_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& seconds) { swing(seconds.toDouble()); });
    connect(&time_, &QVariantAnimation::finished, this, &SpringValue::rest);
}

void SpringValue::componentComplete() {
    isComplete_ = true;
    rest();
}

void SpringValue::setTarget(double target) {
    if (target == target_) {
        return;
    }
    target_ = target;
    emit targetChanged();
    const Appearance* const appearance = Appearance::current();
    if (!isComplete_ || (appearance && appearance->reducedMotion())) {
        rest();
        return;
    }
    startDistance_ = value_ - target_;
    startVelocity_ = velocity_;
    const double decay = dampingFraction_ * 2 * std::numbers::pi / response_;
    const double seconds = -std::log(goodAsThere) / decay;
    time_.stop();
    time_.setEndValue(seconds);
    time_.setDuration(static_cast<int>(std::lround(seconds * 1000)));
    time_.start();
}

/// A damped oscillation about the target from where and how fast it was at the start.
void SpringValue::swing(double seconds) {
    const double pace = 2 * std::numbers::pi / response_;
    const double decay = dampingFraction_ * pace;
    const double swingPace = pace * std::sqrt(1 - dampingFraction_ * dampingFraction_);
    const double sine = std::sin(swingPace * seconds);
    const double cosine = std::cos(swingPace * seconds);
    const double across = (startVelocity_ + decay * startDistance_) / swingPace;
    const double left = std::exp(-decay * seconds);
    value_ = target_ + left * (startDistance_ * cosine + across * sine);
    velocity_ = left * ((across * swingPace - decay * startDistance_) * cosine -
                        (startDistance_ * swingPace + decay * across) * sine);
    emit valueChanged();
}

void SpringValue::rest() {
    time_.stop();
    value_ = target_;
    velocity_ = 0;
    emit valueChanged();
}

} // namespace kestrelfen
