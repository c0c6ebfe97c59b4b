#include "AppDelegateTest.hpp"

#include <stdexcept>

namespace kestrelfen {
namespace {

class LaunchTest : public AppDelegateTest {};

TEST_F(LaunchTest, EngineStartsFirstAndTheDaysCountsComeAfterwards) {
    remember(at("00:00:00"), 3, 1);
    delegate().applicationDidFinishLaunching();
    EXPECT_EQ(happened(),
              lines({"08:00:00 log StatusItem: right click enabled on the status item",
                     "08:00:00 log BreakEngine: work 20 min → break at 08:20 (next break long: false)"}));
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    settle();
    EXPECT_EQ(happened(),
              lines({"08:00:00 log BreakEngine: hydrated day 2026-03-09: 3 completed, 1 skipped"}));
    EXPECT_EQ(engine().breaksCompletedToday(), 3);
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
}

TEST_F(LaunchTest, OnboardingThatIsNotDoneLeavesTheEngineIdle) {
    platform.preferences.remove("hasCompletedOnboarding");
    delegate().applicationDidFinishLaunching();
    settle();
    EXPECT_EQ(happened(),
              lines({"08:00:00 log StatusItem: right click enabled on the status item",
                     "08:00:00 log BreakEngine: hydrated day 2026-03-09: 0 completed, 0 skipped"}));
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(platform.ticker.running(), 0U);
}

TEST_F(LaunchTest, EndOfTheOnboardingStartsTheEngineOnce) {
    platform.preferences.remove("hasCompletedOnboarding");
    launch();
    platform.clock.advance(60);
    delegate().finishOnboarding();
    EXPECT_EQ(platform.preferences.boolean("hasCompletedOnboarding"), true);
    EXPECT_EQ(happened(),
              lines({"08:01:00 log BreakEngine: work 20 min → break at 08:21 (next break long: false)"}));
    platform.clock.advance(60);
    delegate().finishOnboarding();
    EXPECT_EQ(platform.ticker.running(), 1U);
    EXPECT_EQ(engine().nextBreakAt(), at("08:21:00"));
}

TEST_F(LaunchTest, ButtonOfTheStatusItemIsLookedForUpToThreeSeconds) {
    platform.statusBarButton.setTriesUntilFound(12);
    launch();
    platform.clock.advance(0.25);
    for (int tries = 1; tries < 12; ++tries) {
        settle();
        platform.clock.advance(0.25);
    }
    EXPECT_EQ(happened(), "");
    settle();
    EXPECT_EQ(happened(), lines({"08:00:03 log StatusItem: right click enabled on the status item"}));
}

TEST_F(LaunchTest, WithoutAStoreTheTimerRunsAllTheSame) {
    storeConfiguration.beforeOpening = [] { throw std::runtime_error("failed"); };
    launch();
    tickAfter(1200);
    tickAfter(20);
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_EQ(delegate().store(), nullptr);
    EXPECT_EQ(windowsHappened(), lines({"window 1 over 1920x1080+0+0", "window 1 goes"}));
}

TEST_F(LaunchTest, SignalsOfTheSystemPauseAndResume) {
    launch();
    platform.systemSignals.send(SystemSignal::screenIsLocked);
    EXPECT_EQ(engine().state().reason(), PauseReason::screenLocked);
    platform.systemSignals.send(SystemSignal::didWake);
    EXPECT_EQ(state(), "working");
    forget();
}

TEST_F(LaunchTest, BreakLocksTheScreenIfThatIsChosen) {
    platform.preferences.set("lockOnBreakStart", true);
    launch();
    engine().beginBreak(platform.clock.now());
    EXPECT_EQ(happened(),
              lines({"08:00:00 log BreakEngine: break 20 s → ends 08:00", "08:00:00 session locks",
                     "08:00:00 log ScreenLock: screen locked at break start"}));
    settle();
    forget();
    destroyDelegate();
    forget();
}

TEST_F(LaunchTest, EngineIsBuiltOnce) {
    BreakEngine& first = engine();
    platform.clock.advance(60);
    launch();
    EXPECT_EQ(&engine(), &first);
    EXPECT_EQ(&delegate().overlays(), &delegate().overlays());
}

TEST_F(LaunchTest, TasksThatAreLeftDoNothingOnceTheDelegateIsGone) {
    delegate().applicationDidFinishLaunching();
    engine().pause(PauseReason::manual);
    forget();
    destroyDelegate();
    settle();
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(platform.ticker.running(), 0U);
    platform.systemSignals.send(SystemSignal::willSleep);
    platform.displays.setCount(2);
}

} // namespace
} // namespace kestrelfen
