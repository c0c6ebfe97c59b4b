#include "sensing/SensingEngineTest.hpp"

namespace kestrelfen {
namespace {

class SystemSignalPauseTest : public SensingEngineTest {};

TEST_F(SystemSignalPauseTest, BeforeTheStartNoSignalIsObserved) {
    create();
    send(SystemSignal::willSleep);
    EXPECT_EQ(state(), "idle");
}

TEST_F(SystemSignalPauseTest, SleepAndWakePauseAndResume) {
    start();
    tickAt("08:05:00");
    send(SystemSignal::willSleep);
    jumpTo("11:00:00");
    send(SystemSignal::didWake);
    settle();
    EXPECT_EQ(happened(),
              lines({"08:05:00 log paused (systemSleep, 15:00 left)",
                     "11:00:00 log system resume signal (systemSleep) clearing systemSleep pause",
                     "11:00:00 log resumed work (15:00 to break)",
                     "11:00:00 record systemSleep pause from 08:05:00, 10500 s, day 2026-03-09"}));
}

TEST_F(SystemSignalPauseTest, ALockThatDeliversBothOfItsSignalsPausesOnce) {
    start();
    send(SystemSignal::sessionDidResignActive);
    send(SystemSignal::screenIsLocked);
    EXPECT_EQ(happened(), lines({"08:00:00 log paused (screenLocked, 20:00 left)"}));
    send(SystemSignal::sessionDidBecomeActive);
    send(SystemSignal::screenIsUnlocked);
    EXPECT_EQ(happened(),
              lines({"08:00:00 log system resume signal (screenLocked) clearing screenLocked pause",
                     "08:00:00 log resumed work (20:00 to break)"}));
}

TEST_F(SystemSignalPauseTest, AForbiddenSleepDoesNotPauseButItsWakeClearsAnotherAutomaticPause) {
    prefer("pauseOnSystemSleep", false);
    start();
    send(SystemSignal::willSleep);
    EXPECT_EQ(state(), "working until 08:20:00");
    send(SystemSignal::didWake);
    EXPECT_EQ(happened(), "");
    send(SystemSignal::screenIsLocked);
    send(SystemSignal::willSleep);
    send(SystemSignal::didWake);
    EXPECT_EQ(happened(),
              lines({"08:00:00 log paused (screenLocked, 20:00 left)",
                     "08:00:00 log system resume signal (systemSleep) clearing screenLocked pause",
                     "08:00:00 log resumed work (20:00 to break)"}));
}

TEST_F(SystemSignalPauseTest, AWakingDisplayLiftsALock) {
    start();
    send(SystemSignal::screenIsLocked);
    send(SystemSignal::screensDidSleep);
    forget();
    send(SystemSignal::screensDidWake);
    EXPECT_EQ(happened(),
              lines({"08:00:00 log system resume signal (displaySleep) clearing screenLocked pause",
                     "08:00:00 log resumed work (20:00 to break)"}));
}

TEST_F(SystemSignalPauseTest, AWakingDisplayLiftsAMeetingAtOnce) {
    start();
    smartPause().found = SmartPauseKind::meetings;
    run(1);
    forget();
    send(SystemSignal::screensDidWake);
    EXPECT_EQ(happened(), lines({"08:00:01 log system resume signal (displaySleep) clearing meeting pause",
                                 "08:00:01 log resumed work (19:59 to break)"}));
}

TEST_F(SystemSignalPauseTest, ADisplayThatSleepsPausesABreakAndKeepsItsRest) {
    start();
    tickAt("08:20:00");
    tickAt("08:20:12");
    forget();
    send(SystemSignal::screensDidSleep);
    EXPECT_EQ(happened(), lines({"08:20:12 log paused (displaySleep, 0:08 left)"}));
    jumpTo("08:25:00");
    send(SystemSignal::screensDidWake);
    EXPECT_EQ(state(), "onBreak until 08:25:08");
    settle();
    forget();
}

TEST_F(SystemSignalPauseTest, WithoutAutomaticResumingTheWakeLeavesThePause) {
    prefer("resumeAutomatically", false);
    start();
    send(SystemSignal::willSleep);
    forget();
    send(SystemSignal::didWake);
    EXPECT_EQ(state(), "paused (systemSleep)");
    EXPECT_EQ(happened(), "");
}

TEST_F(SystemSignalPauseTest, AfterShutDownNoSignalIsObserved) {
    start();
    engine().shutDown();
    send(SystemSignal::willSleep);
    send(SystemSignal::didWake);
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(happened(), "");
}

TEST_F(SystemSignalPauseTest, AfterTheEnginesEndASignalDoesNothing) {
    start();
    destroyEngine();
    send(SystemSignal::willSleep);
    EXPECT_EQ(happened(), "");
}

TEST_F(SystemSignalPauseTest, AVideoLeftToPlayDoesNotCountAsInput) {
    prefer("smartPauseVideo", false);
    start();
    smartPause().found = SmartPauseKind::video;
    platform.inputIdle.setAway();
    run(61);
    EXPECT_EQ(happened(), lines({"08:01:01 log paused (userIdle, 18:59 left)"}));
}

} // namespace
} // namespace kestrelfen
