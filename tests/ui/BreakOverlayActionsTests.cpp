#include "ContentTest.hpp"
#include "ui/BreakOverlayView/BreakOverlayActions.hpp"

namespace kestrelfen {
namespace {

class BreakOverlayActionsTest : public ContentTest {
  protected:
    BreakOverlayActions& actions() {
        if (!actions_) {
            actions_.emplace(engine(), platform.ports());
        }
        return *actions_;
    }

    void setEscape(const char* action) { prefer("doubleEscapeAction", std::string(action)); }

    void pressAfter(double seconds) {
        pass(seconds);
        actions().escape();
    }

    bool isOnBreak() { return engine().state().is(BreakState::Case::onBreak); }
    std::string state() { return stateText(engine().state()); }

  private:
    std::optional<BreakOverlayActions> actions_;
};

TEST_F(BreakOverlayActionsTest, SnoozesCountFromTheMomentOfTheClick) {
    const std::array ends{"08:01:00.25", "08:03:00.5", "08:05:00.75"};
    for (std::size_t index = 0; index < snoozeOptions.size(); ++index) {
        beginBreak();
        pass(0.25);
        actions().snooze(snoozeOptions[index]);
        EXPECT_EQ(state(), std::string("working until ") + ends[index]);
    }
}

TEST_F(BreakOverlayActionsTest, EndingEarlyCompletesTheBreak) {
    beginLongBreak();
    wait(225);
    pass(0.5);
    actions().endBreak();
    settle();
    const std::string record =
        "record completed long break from 08:00:00, 225.5 of 300 s, displays 1, task -, ";
    EXPECT_EQ(happened(), lines({"08:03:45.5 log break ended early", "08:03:45.5 onWorkIntervalCompleted",
                                 "08:03:45.5 log break complete (today: 2)",
                                 "08:03:45.5 log work 20 min → break at 08:23 (next break long: false)",
                                 "08:03:45.5 " + record + "day 2026-03-09"}));
}

TEST_F(BreakOverlayActionsTest, EndingEarlyIsRefusedOnceItNoLongerHolds) {
    beginLongBreak();
    wait(224);
    actions().endBreak();
    EXPECT_TRUE(isOnBreak());
    wait(76);
    EXPECT_FALSE(isOnBreak());
    actions().endBreak();
    EXPECT_EQ(engine().breaksCompletedToday(), 2);
    EXPECT_EQ(happened(), "");
}

TEST_F(BreakOverlayActionsTest, SkipIsTheEngines) {
    beginBreak();
    actions().skip();
    EXPECT_TRUE(isOnBreak());
    wait(5);
    actions().skip();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
}

TEST_F(BreakOverlayActionsTest, OneEscapeDoesNothing) {
    setEscape("snooze");
    beginBreak();
    actions().escape();
    EXPECT_TRUE(isOnBreak());
    EXPECT_EQ(happened(), "");
}

TEST_F(BreakOverlayActionsTest, TwoEscapesWithinLessThanASecondAct) {
    setEscape("snooze");
    beginBreak();
    actions().escape();
    pressAfter(0.99);
    EXPECT_EQ(state(), "working until 08:05:00.99");
}

TEST_F(BreakOverlayActionsTest, TwoEscapesASecondApartDoNotActAndTheSecondIsANewFirst) {
    setEscape("snooze");
    beginBreak();
    actions().escape();
    pressAfter(1.0);
    EXPECT_TRUE(isOnBreak());
    pressAfter(0.999999);
    EXPECT_FALSE(isOnBreak());
}

TEST_F(BreakOverlayActionsTest, EscapeSnoozesForTheConfiguredLength) {
    setEscape("snooze");
    prefer("snoozeDurationSeconds", 61.5);
    beginBreak();
    actions().escape();
    actions().escape();
    EXPECT_EQ(state(), "working until 08:01:01.5");
}

TEST_F(BreakOverlayActionsTest, EscapeSkipsWhateverTheButtonsShow) {
    setEscape("skip");
    prefer("enforcementLevel", std::string("casual"));
    beginBreak();
    actions().escape();
    actions().escape();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
}

TEST_F(BreakOverlayActionsTest, EnginesOwnGuardsDecide) {
    setEscape("skip");
    beginBreak();
    actions().escape();
    actions().escape();
    EXPECT_TRUE(isOnBreak());
    wait(10);
    prefer("showSkipButton", false);
    actions().escape();
    actions().escape();
    EXPECT_TRUE(isOnBreak());
    setEscape("snooze");
    setQuota("snoozesPerDay", 0);
    actions().escape();
    EXPECT_TRUE(isOnBreak());
    EXPECT_EQ(happened(), "");
}

TEST_F(BreakOverlayActionsTest, ThirdEscapeWithinASecondOfTheSecondActsOnceMore) {
    setEscape("skip");
    beginBreak();
    wait(4);
    actions().escape();
    pressAfter(0.9);
    EXPECT_TRUE(isOnBreak());
    pass(0.1);
    tick();
    pressAfter(0.5);
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
}

TEST_F(BreakOverlayActionsTest, FourthEscapeStillCounts) {
    setEscape("snooze");
    beginBreak();
    actions().escape();
    actions().escape();
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 1);
    engine().beginBreak(now());
    actions().escape();
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 1);
    engine().beginBreak(now());
    actions().escape();
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 1);
    EXPECT_EQ(platform.preferences.integer("snoozesPerDay.count"), 3);
}

TEST_F(BreakOverlayActionsTest, PressesAreNotRecordedWhileEscapeDoesNothing) {
    beginBreak();
    actions().escape();
    setEscape("snooze");
    pressAfter(0.1);
    EXPECT_TRUE(isOnBreak());
    setEscape("nothing");
    pressAfter(0.1);
    setEscape("snooze");
    pressAfter(0.1);
    EXPECT_FALSE(isOnBreak()) << "the press before the two that did nothing is remembered";
}

TEST_F(BreakOverlayActionsTest, PressesDoNotSpanTwoOverlays) {
    setEscape("snooze");
    beginBreak();
    BreakOverlayActions first(engine(), platform.ports());
    BreakOverlayActions second(engine(), platform.ports());
    first.escape();
    second.escape();
    EXPECT_TRUE(isOnBreak());
    first.escape();
    EXPECT_FALSE(isOnBreak());
}

TEST_F(BreakOverlayActionsTest, ClockThatWasSetBackCountsAsLessThanASecond) {
    setEscape("snooze");
    beginBreak();
    actions().escape();
    pressAfter(-600);
    EXPECT_FALSE(isOnBreak());
}

} // namespace
} // namespace kestrelfen
