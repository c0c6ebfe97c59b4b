#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class GateTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    /// The gates that are open.
    std::string open() {
        std::string gates;
        gates += engine().canPostpone() ? "postpone " : "";
        gates += engine().canSnooze() ? "snooze " : "";
        gates += engine().canSkipNextBreak() ? "skip-next " : "";
        gates += engine().canSkipCurrentBreak() ? "skip-current " : "";
        gates += engine().canEndBreakEarly() ? "end-early " : "";
        return gates;
    }

    /// Goes into a break of that length, `elapsed` seconds of it past.
    void beInBreak(double length, double elapsed) {
        prefer("breakDurationSeconds", length);
        create();
        start();
        engine().beginBreak(now());
        pass(elapsed);
        tick();
    }
};

TEST_F(GateTest, EachStateOpensItsOwnGates) {
    prefer("enforcementLevel", "casual");
    prefer("breakDurationSeconds", 60.0);
    create();
    EXPECT_EQ(open(), "");
    start();
    EXPECT_EQ(open(), "postpone skip-next ");
    tickAt("08:19:50");
    EXPECT_EQ(open(), "postpone snooze skip-next ");
    tickAt("08:20:00");
    EXPECT_EQ(open(), "snooze skip-current ");
    tickAt("08:20:45");
    EXPECT_EQ(open(), "snooze skip-current end-early ");
    engine().pause(PauseReason::manual);
    EXPECT_EQ(open(), "");
    engine().resume(now());
    EXPECT_EQ(open(), "snooze skip-current end-early ");
    tickAt("08:21:00");
    engine().pause(PauseReason::userIdle);
    EXPECT_EQ(open(), "");
}

TEST_F(GateTest, AtCasualABreakCanBeSkippedAtOnce) {
    prefer("enforcementLevel", "casual");
    beInBreak(20, 0);
    EXPECT_TRUE(engine().canSkipCurrentBreak());
}

TEST_F(GateTest, AtBalancedABreakCanBeSkippedFromExactlyFiveSecondsOn) {
    beInBreak(20, 4.999999);
    EXPECT_FALSE(engine().canSkipCurrentBreak());
    beInBreak(20, 5);
    EXPECT_TRUE(engine().canSkipCurrentBreak());
    prefer("enforcementLevel", "unknown");
    EXPECT_TRUE(engine().canSkipCurrentBreak());
}

TEST_F(GateTest, AtHardcoreABreakCanNeverBeSkippedButStillSnoozed) {
    prefer("enforcementLevel", "hardcore");
    beInBreak(20, 19.9);
    EXPECT_FALSE(engine().canSkipCurrentBreak());
    EXPECT_TRUE(engine().canSnooze());
}

TEST_F(GateTest, TheLevelLeavesTheOtherGatesAlone) {
    prefer("enforcementLevel", "hardcore");
    start();
    EXPECT_EQ(open(), "postpone skip-next ");
    tickAt("08:19:50");
    EXPECT_EQ(open(), "postpone snooze skip-next ");
    beInBreak(60, 45);
    EXPECT_EQ(open(), "snooze end-early ");
}

TEST_F(GateTest, WithoutTheSkipButtonABreakCannotBeSkipped) {
    prefer("enforcementLevel", "casual");
    prefer("showSkipButton", false);
    beInBreak(20, 10);
    EXPECT_FALSE(engine().canSkipCurrentBreak());
    prefer("showSkipButton", true);
    EXPECT_TRUE(engine().canSkipCurrentBreak());
}

TEST_F(GateTest, AnEarlyEndIsPossibleWithExactlyAQuarterLeft) {
    beInBreak(300, 224.999999);
    EXPECT_FALSE(engine().canEndBreakEarly());
    beInBreak(300, 225);
    EXPECT_TRUE(engine().canEndBreakEarly());
}

TEST_F(GateTest, AnEarlyEndNeedsABreakOfAtLeastAMinute) {
    beInBreak(60, 45);
    EXPECT_TRUE(engine().canEndBreakEarly());
    beInBreak(59.9, 45);
    EXPECT_FALSE(engine().canEndBreakEarly());
    beInBreak(59.9, 59.8);
    EXPECT_FALSE(engine().canEndBreakEarly());
    beInBreak(20, 19);
    EXPECT_FALSE(engine().canEndBreakEarly());
}

TEST_F(GateTest, AnEarlyEndCanBeForbidden) {
    prefer("allowEndBreakEarly", false);
    beInBreak(60, 50);
    EXPECT_FALSE(engine().canEndBreakEarly());
    prefer("allowEndBreakEarly", true);
    EXPECT_TRUE(engine().canEndBreakEarly());
}

TEST_F(GateTest, AnEarlyEndCompletesTheBreakWithItsTrueLength) {
    beInBreak(60, 50);
    ASSERT_TRUE(engine().canEndBreakEarly());
    forget();
    engine().logTransition("break ended early");
    engine().completeBreak(now());
    settle();
    EXPECT_EQ(happened(),
              lines({"08:00:50 log break ended early", "08:00:50 onWorkIntervalCompleted",
                     "08:00:50 log break complete (today: 1)",
                     "08:00:50 log work 20 min → break at 08:20 (next break long: false)",
                     "08:00:50 record completed short break from 08:00:00, 50 of 60 s, displays 1, task -, "
                     "day 2026-03-09"}));
    EXPECT_EQ(engine().cyclePosition(), 2);
}

TEST_F(GateTest, ReadingAGateChangesNothing) {
    start();
    const auto before = platform.preferences.all();
    open();
    EXPECT_EQ(platform.preferences.all(), before);
    EXPECT_EQ(happened(), "");
}

} // namespace
} // namespace kestrelfen
