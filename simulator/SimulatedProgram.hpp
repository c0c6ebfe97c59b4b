#pragma once

#include "SimulatedWindows.hpp"
#include "platform/posix/PosixTextFileWriter.hpp"
#include "shell/AppDelegate.hpp"
#include "ui/LaunchAtLogin.hpp"
#include "ui/OnboardingView/Onboarding.hpp"
#include "ui/SettingsWindowView/HistoryDataActions.hpp"

#include <functional>
#include <string_view>

namespace kestrelfen {

/// One run of the program, from its launch to its end, over a platform that outlives it.
class SimulatedProgram {
  public:
    /// Builds everything at this one instant. `onWindows` hears of each call that changed a window.
    SimulatedProgram(const Platform& platform, const StoreConfiguration& store,
                     const std::function<void(std::string_view call)>& onWindows);

    AppDelegate& delegate() { return delegate_; }
    BreakEngine& engine() { return delegate_.engine(); }
    ScreenTimeTracker& screenTime() { return delegate_.screenTime(); }
    /// Null when the store could not be opened.
    KestrelfenStore* store() { return delegate_.store(); }
    HistoryDataActions& historyData() { return historyData_; }
    /// The Timing pane's switch.
    LaunchAtLogin& launchAtLogin() { return launchAtLogin_; }
    /// It starts over when it has been finished.
    Onboarding& onboarding() { return onboarding_; }
    std::int64_t breakWindowCount();

    /// What the person chose on the dashboard.
    struct DashboardChoices {
        UsageSource usageSource = UsageSource::apps;
        std::optional<Date> hoveredDay;
    };
    DashboardChoices& dashboardChoices() { return dashboardChoices_; }

    /// The overlay of the first display, or null.
    SimulatedBreakWindow* firstOverlay();
    bool isWarningShown() { return delegate_.overlays().isWarningShown(); }

  private:
    PosixTextFileWriter fileWriter_;
    SimulatedWindows windows_;
    AppDelegate delegate_;
    HistoryDataActions historyData_;
    LaunchAtLogin launchAtLogin_;
    Onboarding onboarding_;
    Subscription onboardingEnd_;
    DashboardChoices dashboardChoices_;
};

} // namespace kestrelfen
