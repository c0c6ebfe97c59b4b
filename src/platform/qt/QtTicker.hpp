#pragma once

#include "platform/ports/PunctualClock.hpp"
#include "platform/ports/Ticker.hpp"

namespace kestrelfen {

/// Repeating timers of Qt's event loop that keep step with the wall clock. Main thread only.
class QtTicker final : public Ticker {
  public:
    explicit QtTicker(PunctualClock& clock) : clock_(clock) {}

    std::unique_ptr<Handle> start(double seconds, std::function<void()> fire) override;

  private:
    PunctualClock& clock_;
};

} // namespace kestrelfen
