#pragma once

#include <functional>

namespace kestrelfen {

/// Sees to it that the program runs once in a person's session. Main thread only.
class SingleInstance {
  public:
    enum class Claim {
        /// No other instance runs.
        first,
        /// Another instance runs and has been asked to show itself.
        second,
        /// This session cannot tell.
        unavailable,
    };

    virtual ~SingleInstance() = default;

    /// Asked once, at the start. May wait for the system, for a second at most.
    virtual Claim claim() = 0;

    /// What to do whenever a later start asks this instance to show itself.
    virtual void onShow(std::function<void()> show) = 0;
};

} // namespace kestrelfen
