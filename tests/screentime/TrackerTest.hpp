#pragma once

#include "screentime/TrackerHarness.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// What a harness looks at, made before it.
struct TrackerMachine {
    FakePlatform machine;
    Trace machineTrace{machine.clock};
};

/// A test of the tracker alone: the test itself says what the engine's state is. At 2026-03-09 08:00 UTC,
/// with Editor (process 1, display 1) in front, input active, the display awake.
class TrackerTest : public testing::Test, private TrackerMachine, public TrackerHarness {
  protected:
    TrackerTest() : TrackerHarness(machine, machineTrace) {
        platform.applications.start({"org.editor", "Editor", 1}, 1);
        platform.applications.setFrontmost(1);
    }

    void TearDown() override { EXPECT_EQ(happened(), "") << "not expected by the test"; }

    /// The next tick comes `seconds` later; what it queues stays queued.
    void sample(double seconds = 1) {
        platform.clock.advance(seconds);
        tracker->sample(platform.clock.now(), state, idleThreshold);
    }

    /// As sample, and everything queued runs.
    void tick(double seconds = 1) {
        sample(seconds);
        settle();
    }

    void run(int ticks) {
        for (; ticks > 0; --ticks) {
            tick();
        }
    }

    void inState(BreakState newState) { state = newState; }

    /// What the day's seconds grow by in one tick.
    double creditOf(double seconds) {
        const double before = tracker->todayActiveSeconds();
        tick(seconds);
        return tracker->todayActiveSeconds() - before;
    }

    void useChrome() {
        platform.applications.start({"com.google.Chrome", "Chrome", 2}, 1);
        platform.applications.setFrontmost(2);
        platform.preferences.set("websiteStats.chrome", true);
        platform.browserAccess.setPermission("com.google.Chrome", FakeBrowserPermission::granted);
        browse("https://www.example.com/page");
    }

    void browse(std::optional<BrowserAccess::ScriptResult> answer) {
        platform.browserAccess.setAnswer("com.google.Chrome", std::move(answer));
    }
    void browse(const char* address) { browse(std::optional<std::string>(address)); }

    std::string happened() { return trace.take(); }
    void forget() { trace.take(); }

    BreakState state = BreakState::working(at("09:00:00"));
    double idleThreshold = 60;
};

} // namespace kestrelfen
