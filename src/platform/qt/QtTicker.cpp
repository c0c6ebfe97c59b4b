#include "platform/qt/QtTicker.hpp"

#include <QTimer>

#include <algorithm>
#include <cmath>

namespace kestrelfen {

namespace {

/// Seconds. Whoever starts a timer reads the clock just after; the firings shall come at or after whole
/// periods from that reading, not a hair before.
constexpr double grace = 0.002;

class QtTimerHandle final : public Ticker::Handle {
  public:
    QtTimerHandle(double seconds, std::function<void()> fire, PunctualClock& clock)
        : seconds_(seconds), fire_(std::make_shared<std::function<void()>>(std::move(fire))), clock_(clock),
          due_(clock.now() + (seconds + grace)) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setSingleShot(true);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { fireNow(); });
        arm();
    }

  private:
    /// Never longer than a period, so that a clock that was set back does not stop the firing.
    void arm() {
        const double left = std::clamp(due_ - clock_.now(), 0.0, seconds_ + grace);
        timer_.start(static_cast<int>(std::ceil(left * 1000.0)));
    }

    void fireNow() {
        const Date date = clock_.dateOfFiring(due_);
        due_ = date + seconds_;
        arm();
        // The firing may end this timer.
        const auto fire = fire_;
        clock_.fireAt(date, *fire);
    }

    double seconds_;
    std::shared_ptr<std::function<void()>> fire_;
    PunctualClock& clock_;
    Date due_;
    QTimer timer_;
};

} // namespace

std::unique_ptr<Ticker::Handle> QtTicker::start(double seconds, std::function<void()> fire) {
    return std::make_unique<QtTimerHandle>(seconds, std::move(fire), clock_);
}

} // namespace kestrelfen
