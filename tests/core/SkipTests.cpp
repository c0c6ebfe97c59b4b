#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class SkipTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(SkipTest, AtBalancedASkipIsPossibleFromTheFifthSecondOn) {
    startBreak();
    tickAt("08:20:04");
    engine().skipCurrentBreak();
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    EXPECT_EQ(happened(), "");
    tickAt("08:20:05");
    engine().skipCurrentBreak();
    settle();
    EXPECT_EQ(happened(),
              lines({"08:20:05 log break skipped (today: 1 skipped)",
                     "08:20:05 log work 20 min → break at 08:40 (next break long: false)",
                     "08:20:05 record skipped short break from 08:20:00, 5 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
}

TEST_F(SkipTest, ASkipEndsAtTheClocksTimeWhileItsDelayCountsByTheLastTick) {
    startBreak();
    tickAt("08:20:05");
    pass(0.75);
    engine().skipCurrentBreak();
    settle();
    EXPECT_EQ(history.breaks().at(0).actualSeconds, 5.75);
    EXPECT_EQ(state(), "working until 08:40:05.75");
    forget();
}

TEST_F(SkipTest, AtHardcoreOrWithoutTheButtonNothingIsSkipped) {
    prefer("enforcementLevel", "hardcore");
    startBreak();
    tickAt("08:20:19");
    engine().skipCurrentBreak();
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    prefer("enforcementLevel", "casual");
    prefer("showSkipButton", false);
    engine().skipCurrentBreak();
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    EXPECT_EQ(happened(), "");
}

TEST_F(SkipTest, APauseDoesNotUseUpTheDelay) {
    startBreak();
    tickAt("08:20:04");
    engine().pause(PauseReason::manual);
    pass(600);
    engine().resume(now());
    settle();
    forget();
    engine().skipCurrentBreak();
    EXPECT_EQ(happened(), "");
    run(1);
    engine().skipCurrentBreak();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    settle();
    forget();
}

TEST_F(SkipTest, OutsideABreakThereIsNoCurrentBreakToSkip) {
    prefer("enforcementLevel", "casual");
    create().skipCurrentBreak();
    start();
    engine().skipCurrentBreak();
    tickAt("08:19:55");
    forget();
    engine().skipCurrentBreak();
    EXPECT_EQ(state(), "preBreakWarning");
    engine().beginBreak(now());
    engine().pause(PauseReason::manual);
    forget();
    engine().skipCurrentBreak();
    EXPECT_EQ(state(), "paused (manual)");
    EXPECT_EQ(happened(), "");
}

TEST_F(SkipTest, WithoutAStoreASkipStillCounts) {
    hasStore = false;
    prefer("enforcementLevel", "casual");
    startBreak();
    engine().skipCurrentBreak();
    settle();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    EXPECT_EQ(happened(), lines({"08:20:00 log break skipped (today: 1 skipped)",
                                 "08:20:00 log work 20 min → break at 08:40 (next break long: false)"}));
}

TEST_F(SkipTest, AnAdvanceSkipRestartsTheIntervalAndLeavesOnlyItsCount) {
    start();
    tickAt("08:05:00");
    engine().skipNextBreak();
    settle();
    EXPECT_EQ(happened(), lines({"08:05:00 log next break skipped (today: 1)",
                                 "08:05:00 log work 20 min → break at 08:25 (next break long: false)"}));
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
    EXPECT_EQ(engine().cyclePosition(), 1);
    EXPECT_EQ(platform.preferences.integer("advanceSkipsPerDay.count"), 1);
    EXPECT_EQ(platform.preferences.date("advanceSkipsPerDay.day"), at("00:00:00"));
    EXPECT_EQ(platform.preferences.object("snoozesPerDay.count"), nullptr);
}

TEST_F(SkipTest, AnAdvanceSkipAtTheWarningRestartsTheIntervalAtTheClocksTime) {
    prefer("longBreakEvery", 2);
    startBreak();
    tickAt("08:20:20");
    tickAt("08:40:15");
    forget();
    pass(0.5);
    engine().skipNextBreak();
    EXPECT_EQ(state(), "working until 09:00:15.5");
    EXPECT_EQ(happened(), lines({"08:40:15.5 log next break skipped (today: 1)",
                                 "08:40:15.5 log work 20 min → break at 09:00 (next break long: true)"}));
}

TEST_F(SkipTest, AnAdvanceSkipWithTheQuotaSpentIsRefusedWithALine) {
    prefer("advanceSkipsPerDay", 1);
    start();
    engine().skipNextBreak();
    tickAt("08:05:00");
    forget();
    engine().skipNextBreak();
    EXPECT_EQ(happened(), lines({"08:05:00 log advance skip refused (quota spent)"}));
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(platform.preferences.integer("advanceSkipsPerDay.count"), 1);
}

TEST_F(SkipTest, AnAdvanceSkipDuringABreakSkipsTheBreakAndSpendsNoQuota) {
    prefer("advanceSkipsPerDay", 0);
    startBreak();
    tickAt("08:20:04");
    engine().skipNextBreak();
    EXPECT_EQ(happened(), "") << "the delay of the level holds here too";
    tickAt("08:20:05");
    engine().skipNextBreak();
    settle();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    EXPECT_EQ(platform.preferences.object("advanceSkipsPerDay.count"), nullptr);
    forget();
}

TEST_F(SkipTest, AnAdvanceSkipInAPauseOrIdleDoesNothing) {
    prefer("advanceSkipsPerDay", 0);
    create().skipNextBreak();
    EXPECT_EQ(state(), "idle");
    start();
    engine().pause(PauseReason::manual);
    forget();
    engine().skipNextBreak();
    EXPECT_EQ(state(), "paused (manual)");
    EXPECT_EQ(happened(), "");
}

TEST_F(SkipTest, AnAdvanceSkipTakesChangedSettings) {
    start();
    prefer("workIntervalSeconds", 600.0);
    engine().skipNextBreak();
    EXPECT_EQ(state(), "working until 08:10:00");
    forget();
}

} // namespace
} // namespace kestrelfen
