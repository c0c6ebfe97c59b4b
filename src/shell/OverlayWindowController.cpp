#include "shell/OverlayWindowController.hpp"

namespace kestrelfen {

namespace {

constexpr int warningMargin = 10;

} // namespace

void OverlayWindowController::showWarning() {
    if (warningWindow_) {
        return;
    }
    warningWindow_ = windows_.makeWarningPanel();
    positionWarningWindow();
    warningWindow_->show();
    changed("showWarning");
}

void OverlayWindowController::hideWarning() {
    if (!warningWindow_) {
        return;
    }
    warningWindow_.reset();
    changed("hideWarning");
}

void OverlayWindowController::buildBreakWindows() {
    std::vector<std::unique_ptr<OverlayWindows::BreakWindow>> windows;
    for (const Display& display : displays_.all()) {
        windows.push_back(windows_.makeBreakWindow(display));
    }
    const bool any = !windows.empty() || !breakWindows_.empty();
    breakWindows_ = std::move(windows);
    if (any) {
        changed("buildBreakWindows");
    }
}

void OverlayWindowController::tearDownBreakWindows() {
    if (breakWindows_.empty()) {
        return;
    }
    breakWindows_.clear();
    changed("tearDownBreakWindows");
}

void OverlayWindowController::observeScreenChanges() {
    if (!screenChangeToken_) {
        screenChangeToken_ = displays_.observe([this] { screensChanged(); });
    }
}

void OverlayWindowController::stopObservingScreenChanges() {
    screenChangeToken_.reset();
}

void OverlayWindowController::screensChanged() {
    if (breakWindows_.empty()) {
        return;
    }
    tearDownBreakWindows();
    buildBreakWindows();
    if (warningWindow_) {
        positionWarningWindow();
    }
}

void OverlayWindowController::positionWarningWindow() {
    const auto display = displays_.main();
    if (!display) {
        return;
    }
    const ScreenRect& area = display->visibleFrame;
    warningWindow_->moveTo(area.x + area.width - warningWindow_->width() - warningMargin,
                           area.y + warningMargin);
}

void OverlayWindowController::changed(std::string_view call) const {
    if (onChange) {
        onChange(call);
    }
}

} // namespace kestrelfen
