#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

/// What outlives the engine holds it weakly.
class LifetimeTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(LifetimeTest, TheTimerEndsWithTheEngine) {
    start();
    destroyEngine();
    EXPECT_EQ(platform.ticker.running(), 0U);
    platform.ticker.fire();
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, SignalsAfterTheEnginesEndDoNothing) {
    start();
    const auto onPause = engine().systemEvents().onPause;
    const auto onResume = engine().systemEvents().onResume;
    destroyEngine();
    onPause(PauseReason::screenLocked);
    onResume(PauseReason::screenLocked);
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, ADayChangeAfterTheEnginesEndReachesNobody) {
    start();
    const auto onRollover = engine().rollover().onRollover;
    destroyEngine();
    onRollover(at("00:00:00"), at("2026-03-10 00:00:00"));
    settle();
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, QueuedRecordsEndQuietlyWithTheEngine) {
    start();
    engine().beginBreak(now());
    engine().completeBreak(now());
    engine().pause(PauseReason::manual);
    pass(60);
    engine().resume(now());
    forget();
    destroyEngine();
    settle();
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, AQueuedHydrationEndsQuietlyWithTheEngine) {
    start();
    jumpTo("2026-03-10 08:00:00");
    engine().tick(now());
    forget();
    destroyEngine();
    settle();
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, AnAnswerOfTheStoreAfterTheEnginesEndIsDropped) {
    start();
    bool completed = false;
    engine().hydrate([&] { completed = true; });
    forget();
    destroyEngine();
    settle();
    EXPECT_FALSE(completed);
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, AnAnswerQueuedBeforeTheEnginesEndIsDropped) {
    start();
    engine().hydrate();
    history.runJobs();
    forget();
    destroyEngine();
    settle();
    EXPECT_EQ(happened(), "");
}

TEST_F(LifetimeTest, ANotificationOnItsWayWhenTheEngineEndsHarmsNobody) {
    platform.programFocus.setActive(false);
    start();
    engine().beginBreak(now());
    destroyEngine();
    settle();
    forget();
}

TEST_F(LifetimeTest, TheMonitorMaySignalWhileTheTickRuns) {
    start();
    engine().onTick = [this](Date) { sendPause(PauseReason::screenLocked); };
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:01 log paused (screenLocked, 19:59 left)"}));
}

TEST_F(LifetimeTest, ACallbackMayCallTheEngine) {
    start();
    engine().onWorkIntervalCompleted = [this] { engine().setActiveTaskTitle("Write the letter"); };
    engine().onDayRollover = [this](Date) { engine().pause(PauseReason::manual); };
    engine().beginBreak(now());
    engine().completeBreak(now());
    EXPECT_EQ(engine().activeTaskTitle(), "Write the letter");
    tickAt("2026-03-10 00:00:00");
    EXPECT_EQ(state(), "paused (manual)");
    forget();
}

} // namespace
} // namespace kestrelfen
