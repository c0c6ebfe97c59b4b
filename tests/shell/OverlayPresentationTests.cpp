#include "AppDelegateTest.hpp"

namespace kestrelfen {
namespace {

const std::string windowComes = "window 1 over 1920x1080+0+0\n";
const std::string windowGoes = "window 1 goes\n";
const std::string cardComes = "card at 1490, 10\ncard shows\n";
const std::string cardGoes = "card goes\n";

class OverlayPresentationTest : public AppDelegateTest {
  protected:
    void TearDown() override {
        forget();
        destroyDelegate();
        forget();
    }
};

TEST_F(OverlayPresentationTest, FollowsTheStateOneTurnLater) {
    launch();
    engine().beginBreak(platform.clock.now());
    EXPECT_EQ(windowsHappened(), "");
    settle();
    EXPECT_EQ(windowsHappened(), windowComes);
}

TEST_F(OverlayPresentationTest, MatchesTheStateAsItStandsAtTheLaunch) {
    engine().beginBreak(platform.clock.now());
    platform.preferences.remove("hasCompletedOnboarding");
    delegate().applicationDidFinishLaunching();
    EXPECT_EQ(windowsHappened(), windowComes);
}

TEST_F(OverlayPresentationTest, WarningShowsTheCard) {
    launch();
    reachWarning();
    EXPECT_EQ(windowsHappened(), cardComes);
}

TEST_F(OverlayPresentationTest, WarningWithoutTheCardShowsNothing) {
    platform.preferences.set("warningHUDEnabled", false);
    launch();
    reachWarning();
    EXPECT_EQ(state(), "preBreakWarning");
    EXPECT_EQ(windowsHappened(), "");
    tickAfter(5);
    EXPECT_EQ(windowsHappened(), windowComes);
}

TEST_F(OverlayPresentationTest, CardGoesWithTheNextStateOnceItIsSwitchedOff) {
    launch();
    reachWarning();
    forget();
    platform.preferences.set("warningHUDEnabled", false);
    tickAfter(1);
    EXPECT_EQ(windowsHappened(), "");
    engine().dismissPreBreakWarning();
    settle();
    EXPECT_EQ(windowsHappened(), cardGoes);
}

TEST_F(OverlayPresentationTest, BreakTakesTheCardAwayBeforeItCovers) {
    launch();
    reachWarning();
    forget();
    tickAfter(5);
    EXPECT_EQ(windowsHappened(), cardGoes + windowComes);
}

TEST_F(OverlayPresentationTest, WorkTakesTheWindowsAway) {
    launch();
    beginBreak();
    forget();
    engine().snooze(60, platform.clock.now());
    settle();
    EXPECT_EQ(windowsHappened(), windowGoes);
    platform.displays.setCount(2);
    EXPECT_EQ(windowsHappened(), "");
}

TEST_F(OverlayPresentationTest, WorkTakesTheCardAway) {
    launch();
    reachWarning();
    forget();
    engine().dismissPreBreakWarning();
    settle();
    EXPECT_EQ(windowsHappened(), cardGoes);
}

TEST_F(OverlayPresentationTest, PauseTakesTheWindowsAwayAndTheirReturnIsAFreshSet) {
    launch();
    beginBreak();
    forget();
    engine().pause(PauseReason::screenLocked);
    settle();
    EXPECT_EQ(windowsHappened(), windowGoes);
    engine().resume(platform.clock.now());
    settle();
    EXPECT_EQ(windowsHappened(), windowComes);
}

TEST_F(OverlayPresentationTest, PauseTakesTheCardAway) {
    launch();
    reachWarning();
    forget();
    engine().pause(PauseReason::manual);
    settle();
    EXPECT_EQ(windowsHappened(), cardGoes);
}

TEST_F(OverlayPresentationTest, BreakThatFollowsABreakLeavesTheWindows) {
    launch();
    beginBreak();
    forget();
    platform.clock.advance(5);
    beginBreak();
    EXPECT_EQ(windowsHappened(), "");
}

TEST_F(OverlayPresentationTest, StateThatCameAndWentShowsNothing) {
    launch();
    engine().beginBreak(platform.clock.now());
    engine().completeBreak(platform.clock.now());
    settle();
    EXPECT_EQ(windowsHappened(), "");
}

TEST_F(OverlayPresentationTest, ChangeWhileTheWindowsAreBuiltIsSeenByTheSecondLook) {
    launch();
    windows.onMakeBreakWindow = [this] { engine().pause(PauseReason::manual); };
    beginBreak();
    EXPECT_EQ(windowsHappened(), windowComes + windowGoes);
    windows.onMakeBreakWindow = nullptr;
    engine().resume(platform.clock.now());
    settle();
    EXPECT_EQ(windowsHappened(), windowComes) << "it was armed again";
}

TEST_F(OverlayPresentationTest, EveryChangeOfManyIsSeen) {
    launch();
    for (int round = 0; round < 3; ++round) {
        beginBreak();
        EXPECT_EQ(windowsHappened(), windowComes);
        engine().completeBreak(platform.clock.now());
        settle();
        EXPECT_EQ(windowsHappened(), windowGoes);
    }
}

TEST_F(OverlayPresentationTest, DisplayChangeInABreakRebuildsAndAfterItNot) {
    launch();
    beginBreak();
    forget();
    platform.displays.setCount(2);
    EXPECT_EQ(windowsHappened(), windowGoes + windowComes + "window 2 over 1920x1080+1920+0\n");
    tickAfter(20);
    EXPECT_EQ(windowsHappened(), windowGoes + "window 2 goes\n");
    platform.displays.setCount(1);
    EXPECT_EQ(windowsHappened(), "");
}

TEST_F(OverlayPresentationTest, BreakWithoutADisplayHasNoWindows) {
    platform.displays.setCount(0);
    launch();
    beginBreak();
    platform.displays.setCount(1);
    tickAfter(19);
    EXPECT_EQ(windowsHappened(), "");
    EXPECT_EQ(state(), "onBreak");
    tickAfter(1);
    beginBreak();
    EXPECT_EQ(windowsHappened(), windowComes);
}

TEST_F(OverlayPresentationTest, RecordCountsTheDisplaysAtTheStartOfTheBreak) {
    platform.displays.setCount(3);
    launch();
    beginBreak();
    platform.displays.setCount(1);
    tickAfter(20);
    const auto entries = history(at("00:00:00"));
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().displayCount, 3);
}

} // namespace
} // namespace kestrelfen
