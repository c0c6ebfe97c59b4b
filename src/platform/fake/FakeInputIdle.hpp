#pragma once

#include "platform/ports/Clock.hpp"
#include "platform/ports/InputIdle.hpp"

namespace kestrelfen {

/// Input by hand: active, away since a moment, of a fixed age, or a system that cannot tell.
class FakeInputIdle final : public InputIdle {
  public:
    explicit FakeInputIdle(const Clock& clock) : clock_(clock) {}

    void setActive() { age_ = 0.0, lastInput_.reset(); }
    void setAway() { lastInput_ = clock_.now(); }
    void setAge(double seconds) { age_ = seconds, lastInput_.reset(); }
    void setUnavailable() { age_.reset(), lastInput_.reset(); }

    std::optional<double> secondsSinceLastInput() override;

  private:
    const Clock& clock_;
    std::optional<double> age_ = 0.0;
    std::optional<Date> lastInput_;
};

} // namespace kestrelfen
