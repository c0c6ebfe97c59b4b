#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class IdlePauseTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
    void beUntouchedFor(double seconds) { platform.inputIdle.setAge(seconds); }
};

TEST_F(IdlePauseTest, BeginsBeyondTheThresholdAndEndsWithInput) {
    start();
    tickAt("08:01:00");
    platform.inputIdle.setAway();
    run(60);
    EXPECT_EQ(happened(), "") << "exactly the threshold is not yet idle";
    run(1);
    EXPECT_EQ(happened(), lines({"08:02:01 log paused (userIdle, 17:59 left)"}));
    run(100);
    EXPECT_EQ(happened(), "");
    platform.inputIdle.setActive();
    run(1);
    EXPECT_EQ(happened(), lines({"08:03:42 log resumed work (17:59 to break)",
                                 "08:03:42 record userIdle pause from 08:02:01, 101 s, day 2026-03-09"}));
}

TEST_F(IdlePauseTest, TheThresholdItselfNeitherPausesNorResumes) {
    start();
    beUntouchedFor(60.0);
    run(1);
    EXPECT_EQ(state(), "working until 08:20:00");
    beUntouchedFor(60.000001);
    run(1);
    EXPECT_EQ(state(), "paused (userIdle)");
    beUntouchedFor(60.0);
    run(1);
    EXPECT_EQ(state(), "paused (userIdle)");
    beUntouchedFor(59.999999);
    run(1);
    EXPECT_EQ(state(), "working until 08:20:02");
    forget();
}

TEST_F(IdlePauseTest, BeatsADueBreakAndTheWarning) {
    start();
    beUntouchedFor(61);
    tickAt("08:19:55");
    EXPECT_EQ(happened(), lines({"08:19:55 log paused (userIdle, 0:05 left)"}));
    create();
    jumpTo("08:00:00");
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log paused (userIdle, 0:00 left)"}));
}

TEST_F(IdlePauseTest, EndsARunningWarning) {
    start();
    tickAt("08:19:55");
    beUntouchedFor(61);
    forget();
    run(1);
    EXPECT_EQ(happened(), lines({"08:19:56 log paused (userIdle, 0:04 left)"}));
}

TEST_F(IdlePauseTest, ModeOffNeverPausesAndActsAtOnce) {
    start();
    prefer("idleMode", "off");
    beUntouchedFor(1e9);
    run(10);
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(happened(), "");
}

TEST_F(IdlePauseTest, ModeOffAtTheStartOfTheIntervalHoldsItsThresholdUntilTheNext) {
    prefer("idleMode", "off");
    start();
    prefer("idleMode", "automatic");
    beUntouchedFor(1e9);
    run(10);
    EXPECT_EQ(state(), "working until 08:20:00");
}

TEST_F(IdlePauseTest, AChangedThresholdIsInForceFromTheNextIntervalOn) {
    start();
    prefer("idleMode", "custom");
    prefer("idleThresholdSeconds", 15.0);
    beUntouchedFor(30);
    run(1);
    EXPECT_EQ(state(), "working until 08:20:00");
    engine().skipNextBreak();
    forget();
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:02 log paused (userIdle, 19:59 left)"}));
}

TEST_F(IdlePauseTest, ModeOffChosenDuringThePauseStillLetsInputEndIt) {
    start();
    beUntouchedFor(61);
    run(1);
    prefer("idleMode", "off");
    run(1);
    EXPECT_EQ(state(), "paused (userIdle)");
    beUntouchedFor(3);
    run(1);
    EXPECT_EQ(state(), "working until 08:20:02");
    forget();
}

TEST_F(IdlePauseTest, WithoutAutomaticResumingThePauseWaitsForThePerson) {
    start();
    beUntouchedFor(61);
    run(1);
    prefer("resumeAutomatically", false);
    platform.inputIdle.setActive();
    forget();
    run(100);
    EXPECT_EQ(state(), "paused (userIdle)");
    prefer("resumeAutomatically", true);
    run(1);
    EXPECT_EQ(state(), "working until 08:21:41");
    forget();
}

TEST_F(IdlePauseTest, AnAgeThatTheSystemCannotTellNeverPauses) {
    prefer("idleMode", "custom");
    prefer("idleThresholdSeconds", 0.0);
    start();
    platform.inputIdle.setUnavailable();
    run(100);
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(happened(), "");
}

TEST_F(IdlePauseTest, AnAgeThatTheSystemCannotTellEndsNoPauseEither) {
    start();
    beUntouchedFor(61);
    run(1);
    platform.inputIdle.setUnavailable();
    forget();
    run(100);
    EXPECT_EQ(happened(), "");
    sendResume(PauseReason::screenLocked);
    EXPECT_EQ(state(), "working until 08:21:40");
    settle();
    forget();
}

TEST_F(IdlePauseTest, AThresholdOfZeroPausesAtTheFirstUntouchedTickAndNoInputEndsIt) {
    prefer("idleMode", "custom");
    prefer("idleThresholdSeconds", 0.0);
    start();
    run(1);
    EXPECT_EQ(state(), "working until 08:20:00");
    beUntouchedFor(0.5);
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:02 log paused (userIdle, 19:58 left)"}));
    platform.inputIdle.setActive();
    run(1);
    EXPECT_EQ(state(), "paused (userIdle)");
}

TEST_F(IdlePauseTest, ADateLeftByATimedPauseEndsIt) {
    start();
    engine().pauseFor(60, now());
    engine().beginBreak(now());
    tickAt("08:00:20");
    beUntouchedFor(61);
    tickAt("08:00:21");
    EXPECT_EQ(state(), "paused (userIdle)");
    tickAt("08:01:00");
    EXPECT_EQ(state(), "working until 08:20:59");
    forget();
}

} // namespace
} // namespace kestrelfen
