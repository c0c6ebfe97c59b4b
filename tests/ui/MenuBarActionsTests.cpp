#include "ContentTest.hpp"
#include "ui/MenuBarView/MenuBarActions.hpp"

namespace kestrelfen {
namespace {

class MenuBarActionsTest : public ContentTest {
  protected:
    MenuBarActions actions() { return {engine(), platform.ports()}; }
    std::string state() { return stateText(engine().state()); }
};

TEST_F(MenuBarActionsTest, FirstButtonPausesByHand) {
    start();
    actions().pauseOrResume();
    EXPECT_EQ(state(), "paused (manual)");
}

TEST_F(MenuBarActionsTest, FirstButtonResumesAtTheMomentOfTheClick) {
    start();
    engine().pause(PauseReason::screenLocked);
    pass(100.5);
    actions().pauseOrResume();
    EXPECT_EQ(state(), "working until 08:21:40.5");
    EXPECT_EQ(momentText(engine().now()), "08:01:40.5");
}

TEST_F(MenuBarActionsTest, SecondButtonSnoozesForTheConfiguredLength) {
    enterWarning(5);
    pass(0.5);
    actions().snoozeOrSkip();
    EXPECT_EQ(state(), "working until 08:24:55.5");
    prefer("snoozeDurationSeconds", 60.0);
    engine().beginBreak(now());
    actions().snoozeOrSkip();
    EXPECT_EQ(state(), "working until 08:20:55.5");
}

TEST_F(MenuBarActionsTest, SecondButtonSkipsTheNextBreakWhereNoSnoozeIsPossible) {
    start();
    wait(600);
    actions().snoozeOrSkip();
    EXPECT_EQ(state(), "working until 08:30:00");
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
    EXPECT_EQ(platform.preferences.integer("advanceSkipsPerDay.count"), 1);
    EXPECT_EQ(platform.preferences.integer("snoozesPerDay.count"), std::nullopt);
}

TEST_F(MenuBarActionsTest, SecondButtonSkipsAtAWarningOnceTheSnoozesAreSpent) {
    setQuota("snoozesPerBreak", 0);
    enterWarning(5);
    actions().snoozeOrSkip();
    EXPECT_EQ(state(), "working until 08:39:55");
}

TEST_F(MenuBarActionsTest, ThirdButtonBeginsABreakFromAnyState) {
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:20");
    create();
    start();
    pass(1.5);
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:21.5");
    engine().pause(PauseReason::manual);
    pass(2);
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:23.5");
}

TEST_F(MenuBarActionsTest, ThirdButtonInABreakIsASkip) {
    beginBreak();
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:20") << "too early: nothing changes";
    wait(5);
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "working until 08:20:05");
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
}

TEST_F(MenuBarActionsTest, ThirdButtonDoesNothingWhereNoSkipIsAllowed) {
    prefer("enforcementLevel", std::string("hardcore"));
    beginBreak();
    wait(19);
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:20");
}

} // namespace
} // namespace kestrelfen
