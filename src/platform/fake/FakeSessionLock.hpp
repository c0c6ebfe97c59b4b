#pragma once

#include "platform/ports/SessionLock.hpp"

#include <functional>
#include <utility>

namespace kestrelfen {

/// A session lock that answers what it was told to; at first, that it locks.
class FakeSessionLock final : public SessionLock {
  public:
    std::function<void()> onLock;

    void setResult(SessionLockResult result) { result_ = std::move(result); }

    SessionLockResult lock() override {
        if (onLock && result_.outcome == SessionLockResult::Outcome::started) {
            onLock();
        }
        return result_;
    }
    bool isAvailable() const override { return result_.outcome != SessionLockResult::Outcome::missing; }

  private:
    SessionLockResult result_{SessionLockResult::Outcome::started};
};

} // namespace kestrelfen
