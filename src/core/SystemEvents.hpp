#pragma once

#include "core/PauseReason.hpp"

#include <functional>

namespace kestrelfen {

/// What the engine asks of its system event monitor. Main thread only.
class SystemEvents {
  public:
    std::function<void(PauseReason)> onPause;
    std::function<void(PauseReason)> onResume;

    virtual ~SystemEvents() = default;

    /// Begins to observe; while observing it does nothing.
    virtual void start() = 0;

    /// After it, no callback is called any more.
    virtual void stop() = 0;
};

} // namespace kestrelfen
