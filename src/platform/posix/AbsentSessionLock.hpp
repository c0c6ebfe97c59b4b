#pragma once

#include "platform/ports/SessionLock.hpp"

namespace kestrelfen {

/// The session lock of a system whose way of locking is not known.
class AbsentSessionLock final : public SessionLock {
  public:
    SessionLockResult lock() override { return {SessionLockResult::Outcome::missing}; }
    bool isAvailable() const override { return false; }
};

} // namespace kestrelfen
