#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class SnoozeTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }

    std::optional<std::int64_t> storedCount() { return platform.preferences.integer("snoozesPerDay.count"); }
};

TEST_F(SnoozeTest, OfABreakDropsItWithoutATraceAndWorksForItsSeconds) {
    startBreak();
    tickAt("08:20:05");
    EXPECT_TRUE(engine().snooze(300, now()));
    settle();
    EXPECT_EQ(happened(), lines({"08:20:05 log snoozed 5 min (today: 1, this break: 1)"}));
    EXPECT_EQ(state(), "working until 08:25:05");
    EXPECT_EQ(engine().nextBreakAt(), at("08:25:05"));
    EXPECT_EQ(engine().currentPhaseTotal(), 300.0);
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 1);
    EXPECT_EQ(storedCount(), 1);
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
}

TEST_F(SnoozeTest, OfAWarningPutsItsBreakOff) {
    start();
    tickAt("08:19:57");
    forget();
    EXPECT_TRUE(engine().snooze(60, now()));
    EXPECT_EQ(happened(), lines({"08:19:57 log snoozed 1 min (today: 1, this break: 1)"}));
    run(49);
    EXPECT_EQ(happened(), "");
    run(1);
    EXPECT_EQ(happened(), lines({"08:20:47 log pre-break warning (0:10 to break)"}));
}

TEST_F(SnoozeTest, ItsEndBeginsAFreshBreakOfFullLength) {
    startBreak();
    tickAt("08:20:15");
    engine().snooze(60, now());
    forget();
    run(60);
    EXPECT_EQ(happened(), lines({"08:21:05 log pre-break warning (0:10 to break)",
                                 "08:21:15 log break 20 s → ends 08:21"}));
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 0) << "a break that begins counts anew";
    run(20);
    EXPECT_EQ(happened(),
              lines({"08:21:35 onWorkIntervalCompleted", "08:21:35 log break complete (today: 1)",
                     "08:21:35 log work 20 min → break at 08:41 (next break long: false)",
                     "08:21:35 record completed short break from 08:21:15, 20 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
    EXPECT_EQ(history.breaks().size(), 1U);
}

TEST_F(SnoozeTest, CountsFromTheGivenDateAndWritesUnevenLengths) {
    startBreak();
    EXPECT_TRUE(engine().snooze(90.5, at("08:20:03.25")));
    EXPECT_EQ(state(), "working until 08:21:33.75");
    EXPECT_EQ(happened(), lines({"08:20:00 log snoozed 1 min 31 s (today: 1, this break: 1)"}));
}

TEST_F(SnoozeTest, OfNothingOrLessIsRefusedAndSpendsNothing) {
    startBreak();
    EXPECT_FALSE(engine().snooze(0, now()));
    EXPECT_FALSE(engine().snooze(-60, now()));
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 0);
    EXPECT_EQ(storedCount(), std::nullopt);
    EXPECT_EQ(happened(), "");
}

TEST_F(SnoozeTest, IsRefusedInEveryStateButBreakAndWarning) {
    create();
    EXPECT_FALSE(engine().snooze(60, now()));
    start();
    EXPECT_FALSE(engine().snooze(60, now()));
    engine().pause(PauseReason::manual);
    forget();
    EXPECT_FALSE(engine().snooze(60, now()));
    EXPECT_EQ(storedCount(), std::nullopt);
    EXPECT_EQ(happened(), "");
}

TEST_F(SnoozeTest, IsRefusedWhileAPauseHoldsTheBreak) {
    startBreak();
    engine().pause(PauseReason::manual);
    forget();
    EXPECT_FALSE(engine().snooze(60, now()));
    EXPECT_EQ(happened(), "");
}

TEST_F(SnoozeTest, WithTheDayUsedUpIsRefusedAndTheCountStays) {
    prefer("snoozesPerDay", 3);
    startBreak();
    for (int count = 0; count < 3; ++count) {
        EXPECT_TRUE(engine().snooze(60, now()));
        run(60);
    }
    forget();
    EXPECT_FALSE(engine().canSnooze());
    EXPECT_FALSE(engine().snooze(60, now()));
    EXPECT_EQ(storedCount(), 3);
    EXPECT_EQ(state(), "onBreak until 08:23:20");
    EXPECT_EQ(happened(), "");
}

TEST_F(SnoozeTest, OnePostponeAndTwoSnoozesUseUpADayOfThree) {
    prefer("snoozesPerDay", 3);
    start();
    EXPECT_TRUE(engine().postponeNextBreak(60, now()));
    tickAt("08:01:00");
    EXPECT_TRUE(engine().snooze(60, now()));
    tickAt("08:02:00");
    forget();
    EXPECT_TRUE(engine().snooze(60, now()));
    EXPECT_EQ(happened(), lines({"08:02:00 log snoozed 1 min (today: 3, this break: 1)"}));
    EXPECT_FALSE(engine().canPostpone());
    tickAt("08:03:00");
    EXPECT_FALSE(engine().canSnooze());
    forget();
}

TEST_F(SnoozeTest, WithOnePerBreakAWarningCanBeSnoozedOnceUntilTheBreakBegins) {
    prefer("snoozesPerBreak", 1);
    start();
    tickAt("08:19:50");
    EXPECT_TRUE(engine().snooze(60, now()));
    tickAt("08:20:45");
    EXPECT_EQ(state(), "preBreakWarning");
    EXPECT_FALSE(engine().canSnooze());
    EXPECT_FALSE(engine().snooze(60, now()));
    tickAt("08:20:50");
    EXPECT_TRUE(engine().snooze(60, now())) << "the fresh break may be snoozed too";
    tickAt("08:21:50");
    EXPECT_TRUE(engine().snooze(60, now())) << "and the one after it";
    forget();
}

TEST_F(SnoozeTest, WithTwoPerBreakTheLineCountsBoth) {
    prefer("snoozesPerBreak", 2);
    start();
    tickAt("08:19:50");
    engine().snooze(10, now());
    tick();
    forget();
    EXPECT_TRUE(engine().snooze(10, now()));
    EXPECT_EQ(happened(), lines({"08:19:50 log snoozed 10 s (today: 2, this break: 2)"}));
    tick();
    EXPECT_FALSE(engine().snooze(10, now()));
    forget();
}

TEST_F(SnoozeTest, OfNoSecondsPerBreakIsNeverPossible) {
    prefer("snoozesPerBreak", 0);
    startBreak();
    EXPECT_FALSE(engine().snooze(60, now()));
    EXPECT_EQ(happened(), "");
}

TEST_F(SnoozeTest, CountsAnewOnANewDay) {
    prefer("snoozesPerDay", 1);
    jumpTo("23:59:50");
    create().beginBreak(now());
    EXPECT_TRUE(engine().snooze(60, now()));
    start();
    engine().beginBreak(now());
    EXPECT_FALSE(engine().canSnooze());
    tickAt("2026-03-10 00:00:00");
    forget();
    EXPECT_TRUE(engine().snooze(60, now()));
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log snoozed 1 min (today: 1, this break: 1)"}));
}

TEST_F(SnoozeTest, ThatFollowsAPauseOfTheBreakForgetsThePause) {
    startBreak();
    tickAt("08:20:05");
    engine().pause(PauseReason::manual);
    engine().resume(now());
    EXPECT_TRUE(engine().snooze(60, now()));
    EXPECT_EQ(engine().timeUntilNextBreak(), 60.0);
    EXPECT_EQ(engine().breakRemaining(), 0.0);
    forget();
}

TEST_F(SnoozeTest, LeavesNoBeginningOfTheDroppedBreakBehind) {
    startBreak();
    engine().snooze(60, now());
    pass(10);
    engine().completeBreak(now());
    settle();
    EXPECT_EQ(history.breaks().at(0).startedAt, at("08:20:10"));
    forget();
}

} // namespace
} // namespace kestrelfen
