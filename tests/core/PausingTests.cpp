#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class PausingTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(PausingTest, APauseOfWorkFreezesTheTimeLeft) {
    start();
    run(200);
    engine().pause(PauseReason::manual);
    EXPECT_EQ(happened(), lines({"08:03:20 log paused (manual, 16:40 left)"}));
    EXPECT_EQ(state(), "paused (manual)");
    run(500);
    EXPECT_EQ(engine().timeUntilNextBreak(), 1000.0);
    EXPECT_EQ(engine().menuBarText(), "16:40");
    EXPECT_EQ(engine().nextBreakAt(), at("08:20:00")) << "it keeps the old date";
    EXPECT_EQ(happened(), "");
}

TEST_F(PausingTest, EveryReasonIsNamedInTheLine) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        create();
        start();
        engine().pause(reason);
        EXPECT_EQ(happened(),
                  momentText(now()) + " log paused (" + std::string(rawValue(reason)) + ", 20:00 left)\n");
    }
}

TEST_F(PausingTest, ResumedWorkGoesOnWithTheTimeLeft) {
    start();
    run(200);
    engine().pause(PauseReason::manual);
    pass(500);
    forget();
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:11:40 log resumed work (16:40 to break)",
                                 "08:11:40 record manual pause from 08:03:20, 500 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 08:28:20");
    EXPECT_EQ(engine().nextBreakAt(), at("08:28:20"));
    EXPECT_EQ(engine().currentPhaseTotal(), 1200.0);
    EXPECT_EQ(engine().now(), at("08:11:40"));
}

TEST_F(PausingTest, APauseCountsFromTheLastTickAndNotFromAFreshReading) {
    start();
    tickAt("08:00:10");
    pass(0.75);
    engine().pause(PauseReason::manual);
    EXPECT_EQ(happened(), lines({"08:00:10.75 log paused (manual, 19:50 left)"}));
    pass(1);
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:00:11.75 log resumed work (19:50 to break)",
                                 "08:00:11.75 record manual pause from 08:00:10, 1.75 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 08:20:01.75");
}

TEST_F(PausingTest, ASecondPauseChangesNothingAndTheFirstReasonStays) {
    start();
    engine().pause(PauseReason::screenLocked);
    forget();
    run(5);
    engine().pause(PauseReason::manual);
    engine().pause(PauseReason::screenLocked);
    EXPECT_EQ(state(), "paused (screenLocked)");
    EXPECT_EQ(happened(), "");
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:00:05 log resumed work (20:00 to break)",
                                 "08:00:05 record screenLocked pause from 08:00:00, 5 s, day 2026-03-09"}));
}

TEST_F(PausingTest, ALockDuringAManualPauseLeavesItManualAndIsNeverRecorded) {
    start();
    engine().pause(PauseReason::manual);
    forget();
    run(10);
    sendPause(PauseReason::screenLocked);
    run(10);
    sendResume(PauseReason::screenLocked);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(state(), "paused (manual)");
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:00:20 log resumed work (20:00 to break)",
                                 "08:00:20 record manual pause from 08:00:00, 20 s, day 2026-03-09"}));
}

TEST_F(PausingTest, APausedWarningComesBackAsWorkAndWarnsOnTheNextTick) {
    start();
    tickAt("08:19:56");
    engine().pause(PauseReason::manual);
    EXPECT_EQ(engine().timeUntilNextBreak(), 4.0);
    forget();
    tickAt("08:30:00");
    engine().resume(now());
    settle();
    EXPECT_EQ(state(), "working until 08:30:04");
    tick();
    EXPECT_EQ(state(), "preBreakWarning");
    EXPECT_EQ(happened(), lines({"08:30:00 log resumed work (0:04 to break)",
                                 "08:30:00 record manual pause from 08:19:56, 604 s, day 2026-03-09",
                                 "08:30:00 log pre-break warning (0:04 to break)"}));
}

TEST_F(PausingTest, AWarningDismissedBeforeThePauseComesAgain) {
    start();
    tickAt("08:19:56");
    engine().dismissPreBreakWarning();
    engine().pause(PauseReason::manual);
    engine().resume(now());
    forget();
    tick();
    EXPECT_EQ(happened(), lines({"08:19:56 log pre-break warning (0:04 to break)"}));
}

TEST_F(PausingTest, AnIntervalFrozenWithNothingLeftBeginsItsBreakOnTheNextTick) {
    start();
    pass(1300);
    smartPause().found = SmartPauseKind::meetings;
    tick();
    EXPECT_EQ(happened(), lines({"08:21:40 log paused (meeting, 0:00 left)"}));
    smartPause().found.reset();
    smartPause().settled = true;
    tickAt("08:30:00");
    EXPECT_EQ(happened(), lines({"08:30:00 log resumed work (0:00 to break)",
                                 "08:30:00 record meeting pause from 08:21:40, 500 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 08:30:00");
    tickAt("08:30:01");
    EXPECT_EQ(happened(), lines({"08:30:01 log break 20 s → ends 08:30"}));
}

TEST_F(PausingTest, APauseOfTheIdleEngineStartsWorkWhenItIsResumed) {
    create().pause(PauseReason::manual);
    EXPECT_EQ(happened(), lines({"08:00:00 log paused (manual, 0:00 left)"}));
    EXPECT_EQ(engine().menuBarText(), "00:00");
    EXPECT_EQ(engine().timeUntilNextBreak(), 0.0);
    EXPECT_EQ(engine().breakRemaining(), 0.0);
    pass(30);
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:00:30 log work 20 min → break at 08:20 (next break long: false)",
                                 "08:00:30 record manual pause from 08:00:00, 30 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 08:20:30");
}

TEST_F(PausingTest, APauseAfterAShutDownHoldsNothingOfThePauseBefore) {
    start();
    engine().pause(PauseReason::manual);
    engine().shutDown();
    forget();
    engine().pause(PauseReason::manual);
    EXPECT_EQ(happened(), lines({"08:00:00 log paused (manual, 0:00 left)"}));
    EXPECT_EQ(engine().timeUntilNextBreak(), 0.0);
    pass(30);
    engine().resume(now());
    EXPECT_EQ(state(), "working until 08:20:30");
    settle();
    forget();
}

TEST_F(PausingTest, ResumingWithoutAPauseDoesNothingNowIncluded) {
    start();
    tickAt("08:00:05");
    engine().resume(at("09:00:00"));
    EXPECT_EQ(engine().now(), at("08:00:05"));
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(happened(), "");
}

TEST_F(PausingTest, ResumingDoesNotReadTheConfigurationAnew) {
    start();
    engine().pause(PauseReason::manual);
    prefer("breakDurationSeconds", 45.0);
    engine().resume(now());
    EXPECT_EQ(engine().config().breakDuration, 20.0);
    forget();
}

TEST_F(PausingTest, ATotalShorterThanTheTimeLeftGrowsToIt) {
    start();
    engine().postponeNextBreak(60, now());
    pass(-120);
    tick();
    EXPECT_EQ(engine().timeUntilNextBreak(), 180.0);
    engine().pause(PauseReason::manual);
    engine().resume(now());
    EXPECT_EQ(engine().currentPhaseTotal(), 180.0);
    EXPECT_EQ(engine().phaseProgress(), 0.0);
    forget();
}

TEST_F(PausingTest, NothingHappensWhileAManualPauseLasts) {
    start();
    engine().pause(PauseReason::manual);
    smartPause().samples.clear();
    forget();
    run(4000);
    EXPECT_EQ(happened(), "");
    EXPECT_TRUE(smartPause().samples.empty());
    EXPECT_EQ(engine().now(), now());
}

TEST_F(PausingTest, TheSnoozesOfTheBreakSurviveAPause) {
    startBreak();
    engine().snooze(60, now());
    engine().pause(PauseReason::manual);
    engine().resume(now());
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 1);
    forget();
}

} // namespace
} // namespace kestrelfen
