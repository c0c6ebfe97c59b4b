#include "platform/qt/QtTicker.hpp"

#include <QTimer>

#include <cmath>

namespace kestrelfen {

namespace {

class QtTimerHandle final : public Ticker::Handle {
  public:
    QtTimerHandle(double seconds, std::function<void()> fire) {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(fire));
        timer_.start(static_cast<int>(std::lround(seconds * 1000.0)));
    }

  private:
    QTimer timer_;
};

} // namespace

std::unique_ptr<Ticker::Handle> QtTicker::start(double seconds, std::function<void()> fire) {
    return std::make_unique<QtTimerHandle>(seconds, std::move(fire));
}

} // namespace kestrelfen
