#pragma once

#include "platform/linux/BusService.hpp"
#include "platform/ports/InputIdle.hpp"

#include <chrono>

namespace kestrelfen {

/// The time since the last input, as GNOME's compositor counts it. It is asked at most once a second, and
/// only when we are asked; an answer is the last one and the time since, so input is seen at the second
/// question after it. Absent while the service is not there or does not answer. Main thread only; it never
/// waits.
class MutterInputIdle final : public InputIdle {
  public:
    explicit MutterInputIdle(BusLink& sessionBus);

    std::optional<double> secondsSinceLastInput() override;

  private:
    using Moment = std::chrono::steady_clock::time_point;
    struct Answer {
        Moment moment;
        double seconds = 0;
    };

    void forget();
    void askIfDue(Moment now);
    void take(const QDBusMessage& message);

    std::optional<Moment> asked_;
    bool isWaiting_ = false;
    std::optional<Answer> answer_;
    BusService service_;
};

} // namespace kestrelfen
