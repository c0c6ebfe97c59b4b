#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class RolloverTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(RolloverTest, ZeroesTheCountsTellsTheNewDayAndAsksTheStore) {
    prefer("enforcementLevel", "casual");
    jumpTo("23:00:00");
    start();
    engine().beginBreak(now());
    engine().completeBreak(now());
    engine().beginBreak(now());
    engine().skipCurrentBreak();
    settle();
    forget();
    engine().onDayRollover = [this](Date dayStart) {
        trace.add("onDayRollover " + dayText(dayStart) + " with " +
                  std::to_string(engine().breaksCompletedToday()) + " and " +
                  std::to_string(engine().breaksSkippedToday()) + " on " +
                  dayText(engine().rollover().currentDayStart()));
    };
    engine().pause(PauseReason::manual);
    forget();
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log day rollover 2026-03-09 → 2026-03-10",
                                 "2026-03-10 00:00:00 onDayRollover 2026-03-10 with 0 and 0 on 2026-03-10",
                                 "2026-03-10 00:00:00 query day 2026-03-10",
                                 "2026-03-10 00:00:00 log hydrated day 2026-03-10: 0 completed, 0 skipped"}));
}

TEST_F(RolloverTest, ComesAfterNowHasMoved) {
    start();
    std::string seen;
    engine().onDayRollover = [&](Date) { seen = momentText(engine().now()); };
    tickAt("2026-03-10 08:00:00");
    EXPECT_EQ(seen, "2026-03-10 08:00:00");
    forget();
}

TEST_F(RolloverTest, ComesAtMidnightAndNotBefore) {
    prefer("workIntervalSeconds", 86'400.0);
    start();
    tickAt("23:59:59.999999");
    EXPECT_EQ(happened(), "");
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(engine().rollover().currentDayStart(), at("2026-03-10 00:00:00"));
    forget();
}

TEST_F(RolloverTest, ASleepAcrossSeveralMidnightsIsOneRollover) {
    start();
    sendPause(PauseReason::systemSleep);
    forget();
    tickAt("2026-03-13 07:00:00");
    EXPECT_EQ(happened(), lines({"2026-03-13 07:00:00 log day rollover 2026-03-09 → 2026-03-13",
                                 "2026-03-13 07:00:00 onDayRollover 2026-03-13",
                                 "2026-03-13 07:00:00 query day 2026-03-13",
                                 "2026-03-13 07:00:00 log hydrated day 2026-03-13: 0 completed, 0 skipped"}));
    EXPECT_EQ(state(), "paused (systemSleep)");
}

TEST_F(RolloverTest, AClockSetBackOverMidnightRollsBackAndLaterForwardAgain) {
    history.remember(at("00:00:00"), 5, 2);
    history.remember(at("2026-03-10 00:00:00"), 1, 0);
    prefer("workIntervalSeconds", 7200.0);
    jumpTo("2026-03-10 00:05:00");
    start();
    tickAt("2026-03-10 00:10:00");
    tickAt("23:50:00");
    EXPECT_EQ(happened(), lines({"23:50:00 log day rollover 2026-03-10 → 2026-03-09",
                                 "23:50:00 onDayRollover 2026-03-09", "23:50:00 query day 2026-03-09",
                                 "23:50:00 log hydrated day 2026-03-09: 5 completed, 2 skipped"}));
    EXPECT_EQ(engine().breaksCompletedToday(), 5);
    EXPECT_EQ(engine().breaksSkippedToday(), 2);
    run(600);
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log day rollover 2026-03-09 → 2026-03-10",
                                 "2026-03-10 00:00:00 onDayRollover 2026-03-10",
                                 "2026-03-10 00:00:00 query day 2026-03-10",
                                 "2026-03-10 00:00:00 log hydrated day 2026-03-10: 1 completed, 0 skipped"}));
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
}

TEST_F(RolloverTest, ABreakOverMidnightBelongsWhollyToTheNewDay) {
    jumpTo("23:39:50");
    start();
    tickAt("23:59:50");
    EXPECT_EQ(state(), "onBreak until 2026-03-10 00:00:10");
    forget();
    run(20);
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_EQ(
        happened(),
        lines({"2026-03-10 00:00:00 log day rollover 2026-03-09 → 2026-03-10",
               "2026-03-10 00:00:00 onDayRollover 2026-03-10", "2026-03-10 00:00:00 query day 2026-03-10",
               "2026-03-10 00:00:00 log hydrated day 2026-03-10: 0 completed, 0 skipped",
               "2026-03-10 00:00:10 onWorkIntervalCompleted",
               "2026-03-10 00:00:10 log break complete (today: 1)",
               "2026-03-10 00:00:10 log work 20 min → break at 00:20 (next break long: false)",
               "2026-03-10 00:00:10 record completed short break from 23:59:50, 20 of 20 s, displays 1, "
               "task -, day 2026-03-10"}));
}

TEST_F(RolloverTest, ABreakThatEndsInTheRolloversTickIsCountedOnTheNewDay) {
    jumpTo("23:39:40");
    start();
    tickAt("23:59:40");
    forget();
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(
        happened(),
        lines({"2026-03-10 00:00:00 log day rollover 2026-03-09 → 2026-03-10",
               "2026-03-10 00:00:00 onDayRollover 2026-03-10", "2026-03-10 00:00:00 onWorkIntervalCompleted",
               "2026-03-10 00:00:00 log break complete (today: 1)",
               "2026-03-10 00:00:00 log work 20 min → break at 00:20 (next break long: false)",
               "2026-03-10 00:00:00 query day 2026-03-10",
               "2026-03-10 00:00:00 record completed short break from 23:59:40, 20 of 20 s, displays 1, "
               "task -, day 2026-03-10",
               "2026-03-10 00:00:00 log hydrated day 2026-03-10: 0 completed, 0 skipped"}));
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
}

TEST_F(RolloverTest, LeavesThePhaseTheCadenceAndTheTaskAsTheyAre) {
    jumpTo("23:30:00");
    start();
    engine().setActiveTaskTitle("Write the letter");
    engine().beginBreak(now());
    engine().completeBreak(now());
    engine().postponeNextBreak(7200, now());
    tick();
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(state(), "working until 2026-03-10 01:30:00");
    EXPECT_EQ(engine().nextBreakAt(), at("2026-03-10 01:30:00"));
    EXPECT_EQ(engine().currentPhaseTotal(), 7200.0);
    EXPECT_EQ(engine().cyclePosition(), 2);
    EXPECT_EQ(engine().activeTaskTitle(), "Write the letter");
    forget();
}

TEST_F(RolloverTest, LeavesTheSnoozesOfTheBreakAsTheyAre) {
    jumpTo("23:59:00");
    create().beginBreak(now());
    engine().start();
    engine().beginBreak(now());
    engine().snooze(600, now());
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 1);
    forget();
}

TEST_F(RolloverTest, LeavesATimedPauseInForce) {
    jumpTo("23:50:00");
    start();
    engine().pauseFor(1200, now());
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(state(), "paused (manual)");
    EXPECT_EQ(engine().pausedUntil(), at("2026-03-10 00:10:00"));
    EXPECT_EQ(engine().timeUntilNextBreak(), 1200.0);
    tickAt("2026-03-10 00:10:00");
    EXPECT_EQ(state(), "working until 2026-03-10 00:30:00");
    forget();
}

TEST_F(RolloverTest, LeavesTheConfigAsItIs) {
    jumpTo("23:50:00");
    start();
    prefer("breakDurationSeconds", 45.0);
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(engine().config().breakDuration, 20.0);
    forget();
}

TEST_F(RolloverTest, WritesNoPreference) {
    jumpTo("23:50:00");
    start();
    engine().postponeNextBreak(3600, now());
    const auto before = platform.preferences.all();
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(platform.preferences.all(), before);
    forget();
}

TEST_F(RolloverTest, AChangeOfZoneAloneIsARolloverNamedInTheNewZone) {
    start();
    tickAt("08:01:00");
    platform.calendar.setZone("America/New_York");
    tickAt("08:02:00");
    EXPECT_EQ(happened(), lines({"08:02:00 log day rollover 2026-03-08 → 2026-03-09",
                                 "08:02:00 onDayRollover 04:00:00", "08:02:00 query day 04:00:00",
                                 "08:02:00 log hydrated day 2026-03-09: 0 completed, 0 skipped"}));
    EXPECT_EQ(engine().rollover().currentDayStart(), at("04:00:00"));
    EXPECT_EQ(state(), "working until 08:20:00");
}

TEST_F(RolloverTest, WithoutAStoreTheCountsStayZero) {
    hasStore = false;
    jumpTo("23:50:00");
    start();
    engine().beginBreak(now());
    engine().completeBreak(now());
    forget();
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log day rollover 2026-03-09 → 2026-03-10",
                                 "2026-03-10 00:00:00 onDayRollover 2026-03-10"}));
}

TEST_F(RolloverTest, WithoutACallbackTheCountsAreZeroedAllTheSame) {
    jumpTo("23:50:00");
    start();
    engine().onDayRollover = nullptr;
    forget();
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log day rollover 2026-03-09 → 2026-03-10",
                                 "2026-03-10 00:00:00 query day 2026-03-10",
                                 "2026-03-10 00:00:00 log hydrated day 2026-03-10: 0 completed, 0 skipped"}));
}

} // namespace
} // namespace kestrelfen
