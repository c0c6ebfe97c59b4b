#pragma once

#include <functional>

namespace kestrelfen {

/// Runs closures on the main thread, in the order of posting, after the code that posted them has returned.
class MainQueue {
  public:
    virtual ~MainQueue() = default;

    /// May be called from any thread.
    virtual void post(std::function<void()> task) = 0;

    /// Main thread only. Runs `task` no sooner than `seconds` from now.
    virtual void postAfter(double seconds, std::function<void()> task) = 0;
};

} // namespace kestrelfen
