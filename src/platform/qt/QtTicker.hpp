#pragma once

#include "platform/ports/Ticker.hpp"

namespace kestrelfen {

/// Repeating timers of Qt's event loop, with no tolerance. Main thread only.
class QtTicker final : public Ticker {
  public:
    std::unique_ptr<Handle> start(double seconds, std::function<void()> fire) override;
};

} // namespace kestrelfen
