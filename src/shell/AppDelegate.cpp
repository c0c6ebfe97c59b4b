#include "shell/AppDelegate.hpp"

#include "core/Settings.hpp"
#include "platform/ports/MainQueue.hpp"
#include "sensing/NoSmartPause.hpp"
#include "sensing/ScreenLock.hpp"
#include "sensing/SystemEventMonitor.hpp"
#include "shell/StatusItemClicks.hpp"

namespace kestrelfen {

namespace {

constexpr int statusItemRetries = 12;
constexpr double statusItemDelay = 0.25;

} // namespace

AppDelegate::AppDelegate(const Platform& platform, BreakHistory* store, OverlayWindows& windows)
    : platform_(platform), store_(store), windows_(windows) {}

BreakEngine& AppDelegate::engine() {
    if (!engine_) {
        engine_ = makeEngine();
    }
    return *engine_;
}

std::unique_ptr<BreakEngine> AppDelegate::makeEngine() {
    const ScreenLock screenLock(platform_.sessionLock, platform_.log);
    return std::make_unique<BreakEngine>(
        platform_, BreakEngine::Collaborators{
                       .store = store_,
                       .systemEvents = std::make_unique<SystemEventMonitor>(platform_.systemSignals),
                       .smartPause = std::make_unique<NoSmartPause>(),
                       .lockScreen = [screenLock] { screenLock.lock(); },
                   });
}

OverlayWindowController& AppDelegate::overlays() {
    if (!overlays_) {
        overlays_ = std::make_unique<OverlayWindowController>(platform_.displays, windows_);
    }
    return *overlays_;
}

void AppDelegate::applicationDidFinishLaunching() {
    observeEngineState();
    syncOverlayPresentation();
    StatusItemClicks::enableRightClick(platform_, statusItemRetries, statusItemDelay);
    platform_.mainQueue.post(lifeline_.guard([this] { engine().hydrate(); }));
    if (Settings::boolean(platform_.preferences, "hasCompletedOnboarding", false)) {
        engine().start();
    }
}

void AppDelegate::finishOnboarding() {
    platform_.preferences.set("hasCompletedOnboarding", true);
    engine().start();
}

/// Hears of one change and is then armed again from the queue; the second look catches a change that fell
/// between the first and the arming.
void AppDelegate::observeEngineState() {
    stateObservation_ = engine().observeState(lifeline_.guard([this] {
        stateObservation_.cancel();
        platform_.mainQueue.post(lifeline_.guard([this] {
            syncOverlayPresentation();
            observeEngineState();
            syncOverlayPresentation();
        }));
    }));
}

void AppDelegate::syncOverlayPresentation() {
    switch (engine().state().phase()) {
    case BreakState::Case::working:
    case BreakState::Case::idle:
    case BreakState::Case::paused:
        overlays().hideWarning();
        removeBreakWindows();
        return;
    case BreakState::Case::onBreak:
        overlays().hideWarning();
        showBreakWindows();
        return;
    case BreakState::Case::preBreakWarning:
        if (Settings::boolean(platform_.preferences, "warningHUDEnabled", true)) {
            overlays().showWarning();
        } else {
            overlays().hideWarning();
        }
        removeBreakWindows();
        return;
    }
}

void AppDelegate::showBreakWindows() {
    if (overlays().breakWindows().empty()) {
        overlays().buildBreakWindows();
        overlays().observeScreenChanges();
    }
}

void AppDelegate::removeBreakWindows() {
    if (!overlays().breakWindows().empty()) {
        overlays().stopObservingScreenChanges();
        overlays().tearDownBreakWindows();
    }
}

void AppDelegate::applicationShouldTerminate(std::function<void()> reply) {
    platform_.mainQueue.post(std::move(reply));
}

void AppDelegate::applicationWillTerminate() {
    removeBreakWindows();
    overlays().hideWarning();
    engine().shutDown();
}

} // namespace kestrelfen
