#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "core/AppAppearance.hpp"
#include "core/BreakEngine.hpp"
#include "platform/ports/ActivationPolicy.hpp"
#include "platform/ports/MainQueue.hpp"
#include "platform/ports/Platform.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "sensing/BrowserScripting.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "shell/AppRouter.hpp"
#include "shell/DailySummary.hpp"
#include "shell/OverlayWindowController.hpp"
#include "store/KestrelfenStore.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kestrelfen {

/// The composition root: owns the long-lived objects, brings them up in order, joins the engine to the
/// tracker, the store and the overlays, and brings everything down at quit. It knows no screen. Main thread
/// only.
class AppDelegate {
  public:
    /// Opens the store. What it is given outlives the delegate.
    AppDelegate(const Platform& platform, const StoreConfiguration& storeConfiguration,
                OverlayWindows& windows);

    /// Null for the whole run when the store could not be opened.
    KestrelfenStore* store() { return store_.get(); }
    BreakEngine& engine();
    SmartPauseMonitor& smartPause();
    ScreenTimeTracker& screenTime();
    BrowserScripting& browserScripting() { return browserScripting_; }
    OverlayWindowController& overlays();
    AppRouter& router() { return router_; }

    void applicationDidFinishLaunching();

    /// Calls `reply` once the program may end.
    void applicationShouldTerminate(std::function<void()> reply);
    void applicationWillTerminate();

    /// Whether the first run's welcome is still to be shown.
    bool needsOnboarding() const;
    /// What the end of the welcome does.
    void finishOnboarding();

  private:
    std::unique_ptr<BreakEngine> makeEngine();
    std::unique_ptr<ScreenTimeTracker> makeTracker();
    void followAppearance();
    void applyAppearance();
    void observeWindowVisibility();
    void scheduleDockPresenceUpdate();
    void requestNotificationAuthorizationIfNeeded();
    void observeEngineState();
    void wireScreenTime();
    void handleTick(Date date);
    void postDailySummaryIfDue(Date date);
    void creditActiveTask();
    void hydrateAndPrune();
    void pruneHistoryIfDue(Date dayStart);
    void syncOverlayPresentation();
    void removeBreakWindows();
    void showBreakWindows();

    /// A closure that runs one turn of the main queue later, unless the delegate has gone.
    template <typename Closure>
    void queueTask(Closure closure) {
        platform_.mainQueue.post(lifeline_.guard(std::move(closure)));
    }

    const Platform platform_;
    OverlayWindows& windows_;
    const std::unique_ptr<KestrelfenStore> store_;
    BrowserScripting browserScripting_;
    AppRouter router_;
    DailySummary dailySummary_;
    std::unique_ptr<BreakEngine> engine_;
    SmartPauseMonitor* smartPause_ = nullptr;
    std::unique_ptr<ScreenTimeTracker> screenTime_;
    std::unique_ptr<OverlayWindowController> overlays_;
    std::vector<std::unique_ptr<ActivationPolicy::Observation>> windowObservers_;
    std::optional<AppAppearance> appliedAppearance_;
    Subscription appearanceObservation_;
    Subscription stateObservation_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
