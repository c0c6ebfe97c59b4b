#pragma once

#include "platform/ports/Log.hpp"
#include "platform/ports/SessionLock.hpp"

namespace kestrelfen {

/// Locks the screen when a break begins. Main thread only.
class ScreenLock {
  public:
    ScreenLock(SessionLock& sessionLock, Log& log) : sessionLock_(sessionLock), log_(log, "ScreenLock") {}

    /// Whether the locking was started; a failure is logged.
    bool lock() const;

  private:
    SessionLock& sessionLock_;
    Logger log_;
};

} // namespace kestrelfen
