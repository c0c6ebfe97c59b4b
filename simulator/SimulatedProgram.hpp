#pragma once

#include "SimulatedWindows.hpp"
#include "shell/AppDelegate.hpp"

#include <functional>
#include <string_view>

namespace kestrelfen {

/// One run of the program, from its launch to its end, over a platform that outlives it.
class SimulatedProgram {
  public:
    /// Builds everything at this one instant. `onWindows` hears of each call that changed a window.
    SimulatedProgram(const Platform& platform, const std::function<void(std::string_view call)>& onWindows);

    AppDelegate& delegate() { return delegate_; }
    BreakEngine& engine() { return delegate_.engine(); }
    std::int64_t breakWindowCount();

    /// The overlay of the first display, or null.
    SimulatedBreakWindow* firstOverlay();
    bool isWarningShown() { return delegate_.overlays().isWarningShown(); }

  private:
    SimulatedWindows windows_;
    AppDelegate delegate_;
};

} // namespace kestrelfen
