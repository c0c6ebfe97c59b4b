#include "shell/desktop/QuickOverlayWindows.hpp"

#include "shell/desktop/QuickBreakWindow.hpp"
#include "shell/desktop/QuickWarningPanel.hpp"

namespace kestrelfen {

QuickOverlayWindows::QuickOverlayWindows(const Platform& platform, QuickViews& views, EscapeKey& escapeKey,
                                         const Compositor& compositor)
    : platform_(platform), views_(views), escapeKey_(escapeKey), compositor_(compositor) {}

std::unique_ptr<OverlayWindows::BreakWindow> QuickOverlayWindows::makeBreakWindow(const Display& display) {
    auto window = std::make_unique<QuickBreakWindow>(*this, *engine_, platform_, views_, display);
    if (breakWindows_.empty()) {
        escapeHandle_ = escapeKey_.grab([this] { escapePressed(); });
    }
    breakWindows_.push_back(window.get());
    return window;
}

std::unique_ptr<OverlayWindows::WarningPanel> QuickOverlayWindows::makeWarningPanel() {
    return std::make_unique<QuickWarningPanel>(*engine_, platform_, views_, compositor_.isBlending());
}

void QuickOverlayWindows::escapePressed() {
    if (!breakWindows_.empty()) {
        breakWindows_.front()->escape();
    }
}

void QuickOverlayWindows::forget(const QuickBreakWindow* window) {
    std::erase(breakWindows_, window);
    if (breakWindows_.empty()) {
        escapeHandle_.reset();
    }
}

} // namespace kestrelfen
