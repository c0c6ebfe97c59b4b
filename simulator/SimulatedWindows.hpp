#pragma once

#include "platform/ports/Platform.hpp"
#include "shell/OverlayWindows.hpp"
#include "ui/BreakOverlayView/BreakOverlayActions.hpp"

namespace kestrelfen {

class BreakEngine;

/// A break window without a screen: what lives and dies with it.
class SimulatedBreakWindow final : public OverlayWindows::BreakWindow {
  public:
    SimulatedBreakWindow(BreakEngine& engine, const Platform& platform) : actions_(engine, platform) {}

    BreakOverlayActions& actions() { return actions_; }

  private:
    BreakOverlayActions actions_;
};

/// Makes windows that nobody sees.
class SimulatedWindows final : public OverlayWindows {
  public:
    explicit SimulatedWindows(const Platform& platform) : platform_(platform) {}

    /// Before the first window is made.
    void setEngine(BreakEngine& engine) { engine_ = &engine; }

    std::unique_ptr<BreakWindow> makeBreakWindow(const Display& display) override;
    std::unique_ptr<WarningPanel> makeWarningPanel() override;

  private:
    const Platform platform_;
    BreakEngine* engine_ = nullptr;
};

} // namespace kestrelfen
