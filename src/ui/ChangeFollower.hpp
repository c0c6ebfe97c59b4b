#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "platform/ports/MainQueue.hpp"

#include <functional>

namespace kestrelfen {

/// Follows what can be observed: calls `refresh` once, a turn of the main queue after any number of changes.
/// Main thread only.
class ChangeFollower {
  public:
    ChangeFollower(MainQueue& queue, std::function<void()> refresh)
        : queue_(queue), refresh_(std::move(refresh)) {}

    /// What to hand to something observable.
    std::function<void()> listener() {
        return lifeline_.guard([this] { refreshSoon(); });
    }

    /// Runs `closure` a turn of the main queue later: after what the engine had queued for the store.
    template <typename Closure>
    void defer(Closure closure) {
        queue_.post(lifeline_.guard(std::move(closure)));
    }

    void keep(Subscription subscription) { subscriptions_.push_back(std::move(subscription)); }

  private:
    void refreshSoon() {
        if (isDue_) {
            return;
        }
        isDue_ = true;
        queue_.post(lifeline_.guard([this] {
            isDue_ = false;
            refresh_();
        }));
    }

    MainQueue& queue_;
    std::function<void()> refresh_;
    bool isDue_ = false;
    std::vector<Subscription> subscriptions_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
