#pragma once

#include "shell/OverlayWindows.hpp"
#include "support/Trace.hpp"

#include <functional>

namespace kestrelfen {

/// Makes windows that exist in the trace alone.
class FakeOverlayWindows final : public OverlayWindows {
  public:
    explicit FakeOverlayWindows(Trace& trace) : trace_(trace) {}

    /// Called while a break window is made.
    std::function<void()> onMakeBreakWindow;

    std::unique_ptr<BreakWindow> makeBreakWindow(const Display& display) override;
    std::unique_ptr<WarningPanel> makeWarningPanel() override;

  private:
    Trace& trace_;
};

} // namespace kestrelfen
