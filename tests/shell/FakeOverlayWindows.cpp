#include "FakeOverlayWindows.hpp"

namespace kestrelfen {

namespace {

std::string frameText(const ScreenRect& frame) {
    return std::to_string(frame.width) + "x" + std::to_string(frame.height) + "+" + std::to_string(frame.x) +
           "+" + std::to_string(frame.y);
}

class FakeBreakWindow final : public OverlayWindows::BreakWindow {
  public:
    FakeBreakWindow(Trace& trace, const Display& display) : trace_(trace), number_(display.number) {
        trace_.add("window " + std::to_string(number_) + " over " + frameText(display.frame));
    }
    FakeBreakWindow(const FakeBreakWindow&) = delete;
    FakeBreakWindow& operator=(const FakeBreakWindow&) = delete;
    ~FakeBreakWindow() override { trace_.add("window " + std::to_string(number_) + " goes"); }

  private:
    Trace& trace_;
    std::int64_t number_;
};

class FakeWarningPanel final : public OverlayWindows::WarningPanel {
  public:
    explicit FakeWarningPanel(Trace& trace) : trace_(trace) {}
    FakeWarningPanel(const FakeWarningPanel&) = delete;
    FakeWarningPanel& operator=(const FakeWarningPanel&) = delete;
    ~FakeWarningPanel() override { trace_.add("card goes"); }

    int width() const override { return 420; }
    void moveTo(int x, int y) override {
        trace_.add("card at " + std::to_string(x) + ", " + std::to_string(y));
    }
    void show() override { trace_.add("card shows"); }

  private:
    Trace& trace_;
};

} // namespace

std::unique_ptr<OverlayWindows::BreakWindow> FakeOverlayWindows::makeBreakWindow(const Display& display) {
    auto window = std::make_unique<FakeBreakWindow>(trace_, display);
    if (onMakeBreakWindow) {
        onMakeBreakWindow();
    }
    return window;
}

std::unique_ptr<OverlayWindows::WarningPanel> FakeOverlayWindows::makeWarningPanel() {
    return std::make_unique<FakeWarningPanel>(trace_);
}

} // namespace kestrelfen
