#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class TimedPauseTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(TimedPauseTest, EndsByItselfAtItsDate) {
    start();
    engine().pauseFor(900, now());
    EXPECT_EQ(engine().pausedUntil(), at("08:15:00"));
    run(899);
    EXPECT_EQ(state(), "paused (manual)");
    EXPECT_EQ(happened(),
              lines({"08:00:00 log paused (manual, 20:00 left)", "08:00:00 log paused for 15 min"}));
    run(1);
    EXPECT_EQ(happened(), lines({"08:15:00 log resumed work (20:00 to break)",
                                 "08:15:00 record manual pause from 08:00:00, 900 s, day 2026-03-09"}));
    EXPECT_EQ(engine().pausedUntil(), std::nullopt);
}

TEST_F(TimedPauseTest, EndsAtExactlyItsDateAndNotBefore) {
    start();
    engine().pauseFor(90, now());
    tickAt("08:01:29.999999");
    EXPECT_EQ(state(), "paused (manual)");
    tickAt("08:01:30");
    EXPECT_EQ(state(), "working until 08:21:30");
    forget();
}

TEST_F(TimedPauseTest, EndsAlsoWithoutAutomaticResuming) {
    prefer("resumeAutomatically", false);
    start();
    engine().pauseFor(60, now());
    tickAt("08:01:00");
    EXPECT_EQ(state(), "working until 08:21:00");
    forget();
}

TEST_F(TimedPauseTest, IsNotLiftedByASystemSignal) {
    start();
    engine().pauseFor(60, now());
    forget();
    sendResume(PauseReason::systemSleep);
    EXPECT_EQ(state(), "paused (manual)");
    EXPECT_EQ(happened(), "");
}

TEST_F(TimedPauseTest, NothingOrLessThanNothingIsNoPause) {
    start();
    engine().pauseFor(0, now());
    engine().pauseFor(-5, now());
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(engine().pausedUntil(), std::nullopt);
    EXPECT_EQ(happened(), "");
}

TEST_F(TimedPauseTest, OfNothingLeavesARunningPauseAlone) {
    start();
    engine().pauseFor(60, now());
    forget();
    engine().pauseFor(0, now());
    EXPECT_EQ(engine().pausedUntil(), at("08:01:00"));
    EXPECT_EQ(happened(), "");
}

TEST_F(TimedPauseTest, CountsFromTheGivenDateWhileThePauseCountsFromTheLastTick) {
    start();
    tickAt("08:00:10");
    pass(0.5);
    engine().pauseFor(60, now());
    EXPECT_EQ(engine().pausedUntil(), at("08:01:10.5"));
    tickAt("08:01:11");
    forget();
    EXPECT_EQ(history.pauses().at(0).startedAt, at("08:00:10"));
    EXPECT_EQ(history.pauses().at(0).seconds, 61.0);
}

TEST_F(TimedPauseTest, ReplacesASmartPauseWhichIsRecordedAndNoLongerLifted) {
    start();
    tickAt("08:05:00");
    smartPause().found = SmartPauseKind::meetings;
    run(1);
    EXPECT_EQ(happened(), lines({"08:05:01 log paused (meeting, 14:59 left)"}));
    run(59);
    engine().pauseFor(900, now());
    settle();
    EXPECT_EQ(happened(), lines({"08:06:00 log resumed work (14:59 to break)",
                                 "08:06:00 log paused (manual, 14:59 left)", "08:06:00 log paused for 15 min",
                                 "08:06:00 record meeting pause from 08:05:01, 59 s, day 2026-03-09"}));
    smartPause().found.reset();
    smartPause().settled = true;
    run(899);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(engine().timeUntilNextBreak(), 899.0);
    run(1);
    EXPECT_EQ(happened(), lines({"08:21:00 log resumed work (14:59 to break)",
                                 "08:21:00 record manual pause from 08:06:00, 900 s, day 2026-03-09"}));
}

TEST_F(TimedPauseTest, ReplacesATimedPauseByItsOwnDate) {
    start();
    engine().pauseFor(60, now());
    tickAt("08:00:30");
    engine().pauseFor(120, now());
    EXPECT_EQ(engine().pausedUntil(), at("08:02:30"));
    tickAt("08:01:00");
    EXPECT_EQ(state(), "paused (manual)");
    tickAt("08:02:30");
    EXPECT_EQ(state(), "working until 08:22:30");
    EXPECT_EQ(history.pauses().size(), 2U);
    forget();
}

TEST_F(TimedPauseTest, ResumedByHandForgetsItsDate) {
    start();
    engine().pauseFor(60, now());
    engine().resume(now());
    EXPECT_EQ(engine().pausedUntil(), std::nullopt);
    engine().pause(PauseReason::manual);
    tickAt("09:00:00");
    EXPECT_EQ(state(), "paused (manual)");
    forget();
}

TEST_F(TimedPauseTest, OfABreakKeepsTheBreak) {
    startBreak();
    engine().pauseFor(60, now());
    tickAt("08:21:00");
    EXPECT_EQ(state(), "onBreak until 08:21:20");
    forget();
}

TEST_F(TimedPauseTest, FromIdleStartsWorkAtItsEnd) {
    create().pauseFor(60, now());
    engine().tick(at("08:01:00"));
    EXPECT_EQ(state(), "working until 08:21:00");
    settle();
    forget();
}

TEST_F(TimedPauseTest, LeftByBreakNowKeepsItsDateWhichEndsTheNextPauseThatTheTickLooksAt) {
    start();
    engine().pauseFor(60, now());
    engine().beginBreak(now());
    EXPECT_EQ(engine().pausedUntil(), at("08:01:00"));
    tickAt("08:00:20");
    engine().pause(PauseReason::manual);
    tickAt("08:00:59");
    EXPECT_EQ(state(), "paused (manual)");
    tickAt("08:01:00");
    EXPECT_EQ(state(), "working until 08:21:00");
    EXPECT_EQ(engine().pausedUntil(), std::nullopt);
    forget();
}

TEST_F(TimedPauseTest, TheDateOfALeftPausePlaysNoPartInASmartOne) {
    start();
    engine().pauseFor(60, now());
    engine().beginBreak(now());
    tickAt("08:00:20");
    smartPause().found = SmartPauseKind::video;
    tickAt("08:00:21");
    tickAt("08:05:00");
    EXPECT_EQ(state(), "paused (videoPlayback)");
    EXPECT_EQ(engine().pausedUntil(), at("08:01:00"));
    forget();
}

} // namespace
} // namespace kestrelfen
