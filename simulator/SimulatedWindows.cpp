#include "SimulatedWindows.hpp"

namespace kestrelfen {

namespace {

class SimulatedWarningPanel final : public OverlayWindows::WarningPanel {
  public:
    int width() const override { return 288; }
    void moveTo(int /*x*/, int /*y*/) override {}
    void show() override {}
};

} // namespace

std::unique_ptr<OverlayWindows::BreakWindow> SimulatedWindows::makeBreakWindow(const Display& /*display*/) {
    return std::make_unique<SimulatedBreakWindow>(*engine_, platform_);
}

std::unique_ptr<OverlayWindows::WarningPanel> SimulatedWindows::makeWarningPanel() {
    return std::make_unique<SimulatedWarningPanel>();
}

} // namespace kestrelfen
