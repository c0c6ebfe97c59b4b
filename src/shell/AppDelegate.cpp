#include "shell/AppDelegate.hpp"

#include "core/AppAppearance.hpp"
#include "core/Settings.hpp"
#include "platform/ports/Clock.hpp"
#include "platform/ports/InterfaceAppearance.hpp"
#include "platform/ports/NotificationAuthorization.hpp"
#include "platform/ports/Preferences.hpp"
#include "sensing/DockPresence.hpp"
#include "sensing/ScreenLock.hpp"
#include "sensing/SystemEventMonitor.hpp"
#include "shell/HistoryRetentionRun.hpp"
#include "shell/StatusItemClicks.hpp"

namespace kestrelfen {

namespace {

constexpr int statusItemRetries = 12;
constexpr double statusItemDelay = 0.25;

InterfaceStyle styleOf(AppAppearance appearance) {
    switch (appearance) {
    case AppAppearance::system:
        return InterfaceStyle::system;
    case AppAppearance::light:
        return InterfaceStyle::light;
    case AppAppearance::dark:
        return InterfaceStyle::dark;
    }
    return InterfaceStyle::system;
}

} // namespace

AppDelegate::AppDelegate(const Platform& platform, const StoreConfiguration& storeConfiguration,
                         OverlayWindows& windows)
    : platform_(platform), windows_(windows),
      store_(KestrelfenStore::make(storeConfiguration,
                                   {platform.storeExecutor, platform.mainQueue, platform.log})),
      browserScripting_(platform), dailySummary_(platform) {}

BreakEngine& AppDelegate::engine() {
    if (!engine_) {
        engine_ = makeEngine();
    }
    return *engine_;
}

SmartPauseMonitor& AppDelegate::smartPause() {
    engine();
    return *smartPause_;
}

std::unique_ptr<BreakEngine> AppDelegate::makeEngine() {
    const ScreenLock screenLock(platform_.sessionLock, platform_.log);
    auto smartPause = std::make_unique<SmartPauseMonitor>(platform_.preferences, platform_.applications,
                                                          platform_.audioProcesses, platform_.log);
    smartPause_ = smartPause.get();
    return std::make_unique<BreakEngine>(
        platform_, BreakEngine::Collaborators{
                       .store = store_.get(),
                       .systemEvents = std::make_unique<SystemEventMonitor>(platform_.systemSignals),
                       .smartPause = std::move(smartPause),
                       .lockScreen = [screenLock] { screenLock.lock(); },
                   });
}

ScreenTimeTracker& AppDelegate::screenTime() {
    if (!screenTime_) {
        screenTime_ = makeTracker();
    }
    return *screenTime_;
}

std::unique_ptr<ScreenTimeTracker> AppDelegate::makeTracker() {
    return std::make_unique<ScreenTimeTracker>(platform_, store_.get(), browserScripting_,
                                               engine().rollover().currentDayStart(), platform_.clock.now());
}

OverlayWindowController& AppDelegate::overlays() {
    if (!overlays_) {
        overlays_ = std::make_unique<OverlayWindowController>(platform_.displays, windows_);
    }
    return *overlays_;
}

void AppDelegate::applicationDidFinishLaunching() {
    followAppearance();
    observeWindowVisibility();
    requestNotificationAuthorizationIfNeeded();
    observeEngineState();
    syncOverlayPresentation();
    wireScreenTime();
    StatusItemClicks::enableRightClick(platform_, statusItemRetries, statusItemDelay);
    queueTask([this] { hydrateAndPrune(); });
    if (!needsOnboarding()) {
        engine().start();
    }
}

void AppDelegate::followAppearance() {
    applyAppearance();
    appearanceObservation_ = platform_.preferences.observe(lifeline_.guard([this] { applyAppearance(); }));
}

void AppDelegate::applyAppearance() {
    const auto appearance = current<AppAppearance>(platform_.preferences);
    if (appearance != appliedAppearance_) {
        appliedAppearance_ = appearance;
        platform_.interfaceAppearance.set(styleOf(appearance));
    }
}

void AppDelegate::observeWindowVisibility() {
    for (const auto event : {ProgramWindowEvent::willClose, ProgramWindowEvent::didBecomeKey}) {
        windowObservers_.push_back(platform_.activationPolicy.observe(
            event, lifeline_.guard([this] { scheduleDockPresenceUpdate(); })));
    }
    DockPresence(platform_.activationPolicy).apply();
}

/// A window that closes still counts as visible when it says so.
void AppDelegate::scheduleDockPresenceUpdate() {
    queueTask([this] { DockPresence(platform_.activationPolicy).apply(); });
}

/// Once in the life of the preferences, whatever comes of it.
void AppDelegate::requestNotificationAuthorizationIfNeeded() {
    constexpr const char* requested = "didRequestNotificationAuthorization";
    if (Settings::boolean(platform_.preferences, requested, false)) {
        return;
    }
    platform_.preferences.set(requested, true);
    queueTask([this] { platform_.notificationAuthorization.request(); });
}

void AppDelegate::hydrateAndPrune() {
    engine().hydrate([this] {
        screenTime().hydrate(
            lifeline_.guard([this] { pruneHistoryIfDue(engine().rollover().currentDayStart()); }));
    });
}

void AppDelegate::pruneHistoryIfDue(Date dayStart) {
    HistoryRetentionRun(platform_, store_.get()).pruneIfDue(dayStart);
}

bool AppDelegate::needsOnboarding() const {
    return !Settings::boolean(platform_.preferences, "hasCompletedOnboarding", false);
}

void AppDelegate::finishOnboarding() {
    platform_.preferences.set("hasCompletedOnboarding", true);
    engine().start();
}

void AppDelegate::applicationShouldTerminate(std::function<void()> reply) {
    queueTask([this, reply = std::move(reply)] { screenTime().flush(reply); });
}

void AppDelegate::applicationWillTerminate() {
    windowObservers_.clear();
    removeBreakWindows();
    overlays().hideWarning();
    engine().shutDown();
}

} // namespace kestrelfen
