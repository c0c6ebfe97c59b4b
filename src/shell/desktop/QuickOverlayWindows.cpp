#include "shell/desktop/QuickOverlayWindows.hpp"

#include "core/BreakEngine.hpp"
#include "core/DoubleEscapeAction.hpp"
#include "platform/ports/Clock.hpp"
#include "platform/ports/MainQueue.hpp"
#include "shell/desktop/QuickBreakWindow.hpp"
#include "shell/desktop/QuickLayerBreakWindow.hpp"
#include "shell/desktop/QuickLayerWarningPanel.hpp"
#include "shell/desktop/QuickWarningPanel.hpp"

namespace kestrelfen {

namespace {

/// What is pressed sooner after the coming of an overlay was meant for what was there before.
constexpr double settlingSeconds = 0.5;

/// So long before a break what its windows need is loaded, unless it is there already.
constexpr double preparationSeconds = 5;

bool isBreakNear(const BreakEngine& engine) {
    const BreakState& state = engine.state();
    const bool isComing = state.is(BreakState::Case::working) || state.is(BreakState::Case::preBreakWarning);
    return isComing && engine.timeUntilNextBreak() <= preparationSeconds;
}

} // namespace

QuickOverlayWindows::QuickOverlayWindows(const Platform& platform, QuickViews& views, EscapeKey& escapeKey,
                                         const Compositor& compositor)
    : platform_(platform), views_(views), escapeKey_(escapeKey), compositor_(compositor) {}

void QuickOverlayWindows::setEngine(BreakEngine& engine) {
    engine_ = &engine;
    engineSubscription_ = engine.observe([this] {
        if (!views_.isWarm() && isBreakNear(*engine_)) {
            platform_.mainQueue.post(lifeline_.guard([this] { prepareForBreak(); }));
        }
    });
}

void QuickOverlayWindows::prepareForBreak() {
    if (!views_.isWarm()) {
        views_.warmUp(QStringLiteral("BreakOverlayView.qml"));
    }
}

std::unique_ptr<OverlayWindows::BreakWindow> QuickOverlayWindows::makeBreakWindow(const Display& display) {
    if (layers_) {
        if (auto layer = makeLayer(display)) {
            return layer;
        }
    }
    return std::make_unique<QuickBreakWindow>(*this, *engine_, platform_, views_, display);
}

std::unique_ptr<OverlayWindows::BreakWindow> QuickOverlayWindows::makeLayer(const Display& display) {
    auto layer = std::make_unique<QuickLayerBreakWindow>(*this, *engine_, platform_, views_);
    return layer->cover(*layers_, display) ? std::move(layer) : nullptr;
}

std::unique_ptr<OverlayWindows::WarningPanel> QuickOverlayWindows::makeWarningPanel() {
    if (layers_) {
        return std::make_unique<QuickLayerWarningPanel>(*engine_, platform_, views_, *layers_);
    }
    return std::make_unique<QuickWarningPanel>(*engine_, platform_, views_, compositor_.isBlending());
}

void QuickOverlayWindows::add(BreakOverlayModel& overlay) {
    if (overlays_.empty()) {
        upSince_ = platform_.clock.now();
        if (hearsEscape()) {
            escapeHandle_ = escapeKey_.grab([this] { escapePressed(); });
        }
    }
    overlays_.push_back(&overlay);
}

void QuickOverlayWindows::forget(const BreakOverlayModel& overlay) {
    std::erase(overlays_, &overlay);
    if (overlays_.empty()) {
        escapeHandle_.reset();
    }
}

/// Where Escape cannot be had alone, all keys are taken only if it does something.
bool QuickOverlayWindows::hearsEscape() const {
    return !escapeKey_.takesAllKeys() ||
           current<DoubleEscapeAction>(platform_.preferences) != DoubleEscapeAction::nothing;
}

/// A clock that was set back is no reason to wait.
bool QuickOverlayWindows::hasSettled() const {
    const double passed = platform_.clock.now() - upSince_;
    return passed < 0 || passed >= settlingSeconds;
}

void QuickOverlayWindows::escapePressed() {
    if (!overlays_.empty() && hasSettled()) {
        overlays_.front()->escape();
    }
}

} // namespace kestrelfen
