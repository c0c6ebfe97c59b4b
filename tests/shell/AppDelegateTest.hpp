#pragma once

#include "FakeOverlayWindows.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "shell/AppDelegate.hpp"
#include "support/Moments.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/Trace.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// The delegate on a fake machine, at 2026-03-09 08:00 UTC at first, with the onboarding done. The trace must
/// be empty at the end of a test: an event that no expectation took is a failure.
class AppDelegateTest : public testing::Test {
  protected:
    AppDelegateTest();
    void TearDown() override { EXPECT_EQ(happened(), "") << "not expected by the test"; }

    AppDelegate& delegate();
    BreakEngine& engine() { return delegate().engine(); }
    void destroyDelegate();

    /// Launches, and forgets the trace of it.
    void launch();
    /// Runs the main queue and the store's jobs until both are empty.
    void settle();
    /// Starts the whole program anew over the same preferences and the same store.
    void relaunch();
    /// The time passes, and the timer fires.
    void tickAfter(double seconds);
    /// As `tickAfter` up to the first break's warning.
    void reachWarning();
    /// Begins a break now.
    void beginBreak();
    /// What the windows did, without the log.
    std::string windowsHappened();
    std::string happened() { return trace.take(); }
    void forget() { trace.take(); }
    /// What the store knows; asks it and settles.
    DaySummary summary(Date dayStart);
    std::vector<DaySummary> summaries(Date since);
    std::vector<HistoryEntry> history(Date since);
    std::vector<TaskSummary> tasks();
    std::vector<AppUsageSummary> appUsage(Date dayStart);
    /// As if an earlier run had recorded these.
    void remember(Date dayStart, int completed, int skipped);
    std::string state() { return std::string(rawValue(engine().state().phase())); }

    FakePlatform platform;
    Trace trace{platform.clock};
    FakeOverlayWindows windows{trace};
    StoreConfiguration storeConfiguration;

  private:
    TemporaryFolder folder_;
    std::unique_ptr<AppDelegate> delegate_;
};

} // namespace kestrelfen
