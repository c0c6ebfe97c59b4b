#pragma once

#include <string>

namespace kestrelfen {

/// The answer to one wish to lock the session.
struct SessionLockResult {
    enum class Outcome { started, missing, failed };
    Outcome outcome = Outcome::missing;
    /// The system's description of a failure; empty otherwise.
    std::string reason = {};
};

/// The system's own way of locking the session.
class SessionLock {
  public:
    virtual ~SessionLock() = default;

    /// Starts to lock and returns at once. `missing` where this system offers no way.
    virtual SessionLockResult lock() = 0;

    /// Whether there is a way now. A read of memory.
    virtual bool isAvailable() const = 0;
};

} // namespace kestrelfen
