#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class ClockJumpTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(ClockJumpTest, ASleepThatPausesLeavesTheIntervalAsItWas) {
    start();
    tickAt("08:15:00");
    sendPause(PauseReason::systemSleep);
    jumpTo("11:00:00");
    sendResume(PauseReason::systemSleep);
    settle();
    EXPECT_EQ(happened(), lines({"08:15:00 log paused (systemSleep, 5:00 left)",
                                 "11:00:00 log system resume signal (systemSleep) clearing systemSleep pause",
                                 "11:00:00 log resumed work (5:00 to break)",
                                 "11:00:00 record systemSleep pause from 08:15:00, 9900 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 11:05:00");
}

TEST_F(ClockJumpTest, ASleepThatDoesNotPauseBeginsOneBreakAtTheWaking) {
    prefer("pauseOnSystemSleep", false);
    start();
    tickAt("08:15:00");
    sendPause(PauseReason::systemSleep);
    jumpTo("15:00:00");
    sendResume(PauseReason::systemSleep);
    tick();
    EXPECT_EQ(happened(), lines({"15:00:00 log break 20 s → ends 15:00"}));
    run(20);
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_EQ(state(), "working until 15:20:20");
    forget();
}

TEST_F(ClockJumpTest, ABreakSleptThroughIsCompletedAtTheWakingWithTheSleepInIt) {
    prefer("pauseOnSystemSleep", false);
    startBreak();
    tickAt("09:20:00");
    EXPECT_EQ(happened(),
              lines({"09:20:00 onWorkIntervalCompleted", "09:20:00 log break complete (today: 1)",
                     "09:20:00 log work 20 min → break at 09:40 (next break long: false)",
                     "09:20:00 record completed short break from 08:20:00, 3600 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
}

TEST_F(ClockJumpTest, AJumpForwardIsLikeASleepWithoutAPause) {
    start();
    tickAt("2031-06-01 12:00:00");
    EXPECT_EQ(happened(), lines({"2031-06-01 12:00:00 log day rollover 2026-03-09 → 2031-06-01",
                                 "2031-06-01 12:00:00 onDayRollover 2031-06-01",
                                 "2031-06-01 12:00:00 log break 20 s → ends 12:00",
                                 "2031-06-01 12:00:00 query day 2031-06-01",
                                 "2031-06-01 12:00:00 log hydrated day 2031-06-01: 0 completed, 0 skipped"}));
    EXPECT_EQ(state(), "onBreak until 2031-06-01 12:00:20");
}

TEST_F(ClockJumpTest, AJumpBackLeavesTheDueDateSoThatThePhaseLastsLonger) {
    start();
    tickAt("08:15:00");
    tickAt("07:45:00");
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(engine().timeUntilNextBreak(), 2100.0);
    EXPECT_EQ(engine().phaseProgress(), 0.0);
    EXPECT_EQ(happened(), "");
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(ClockJumpTest, AJumpBackDuringTheWarningLeavesTheWarningUp) {
    start();
    tickAt("08:19:50");
    forget();
    tickAt("08:00:00");
    EXPECT_EQ(state(), "preBreakWarning");
    EXPECT_EQ(engine().menuBarText(), "20:00");
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(ClockJumpTest, AJumpBackDuringABreakMakesItLastLonger) {
    startBreak();
    tickAt("08:19:30");
    EXPECT_EQ(engine().breakRemaining(), 50.0);
    EXPECT_EQ(engine().elapsedInCurrentBreak(), 0.0);
    EXPECT_FALSE(engine().canSkipCurrentBreak());
    tickAt("08:20:20");
    EXPECT_EQ(history.breaks().at(0).actualSeconds, 20.0);
    forget();
}

TEST_F(ClockJumpTest, AJumpOfYearsBackHoldsAndComesBack) {
    start();
    tickAt("2001-01-01 00:00:00");
    EXPECT_EQ(happened(), lines({"2001-01-01 00:00:00 log day rollover 2026-03-09 → 2001-01-01",
                                 "2001-01-01 00:00:00 onDayRollover 2001-01-01",
                                 "2001-01-01 00:00:00 query day 2001-01-01",
                                 "2001-01-01 00:00:00 log hydrated day 2001-01-01: 0 completed, 0 skipped"}));
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(engine().menuBarText(), "99:00");
    tickAt("08:00:05");
    EXPECT_EQ(engine().timeUntilNextBreak(), 1195.0);
    forget();
}

TEST_F(ClockJumpTest, AManualPauseOutlastsAnyJump) {
    start();
    engine().pause(PauseReason::manual);
    for (const char* moment : {"2051-01-01 00:00:00", "1970-01-02 00:00:00", "08:00:10"}) {
        tickAt(moment);
        EXPECT_EQ(state(), "paused (manual)");
        EXPECT_EQ(engine().timeUntilNextBreak(), 1200.0);
    }
    forget();
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:00:10 log resumed work (20:00 to break)",
                                 "08:00:10 record manual pause from 08:00:00, 10 s, day 2026-03-09"}));
}

TEST_F(ClockJumpTest, ATimedPauseEndsByAJumpOverItsDateAndLastsLongerByAJumpBack) {
    start();
    engine().pauseFor(60, now());
    tickAt("07:00:00");
    EXPECT_EQ(state(), "paused (manual)");
    tickAt("2027-01-01 00:00:00");
    EXPECT_EQ(state(), "working until 2027-01-01 00:20:00");
    forget();
}

TEST_F(ClockJumpTest, AnIntervalFrozenAfterAJumpBackKeepsTheLongerRest) {
    start();
    tickAt("07:00:00");
    engine().pause(PauseReason::manual);
    EXPECT_EQ(happened(), lines({"07:00:00 log paused (manual, 80:00 left)"}));
    engine().resume(at("07:30:00"));
    EXPECT_EQ(state(), "working until 08:50:00");
    EXPECT_EQ(engine().currentPhaseTotal(), 4800.0);
    settle();
    forget();
}

TEST_F(ClockJumpTest, SeveralTicksAtOneInstantAreHarmless) {
    start();
    tickAt("08:20:00");
    tick();
    tick();
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    tickAt("08:20:20");
    tick();
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    forget();
}

} // namespace
} // namespace kestrelfen
