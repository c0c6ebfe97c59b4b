#include "core/EngineTest.hpp"

#include <thread>

namespace kestrelfen {
namespace {

class StartTest : public EngineTest {};

TEST_F(StartTest, TheEngineIsCreatedIdleAndTouchesNothing) {
    create();
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(engine().now(), at("08:00:00"));
    EXPECT_EQ(engine().nextBreakAt(), std::nullopt);
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
    EXPECT_EQ(engine().currentPhaseTotal(), 0.0);
    EXPECT_FALSE(engine().currentBreakIsLong());
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
    EXPECT_EQ(engine().rollover().currentDayStart(), at("00:00:00"));
    EXPECT_EQ(engine().pausedUntil(), std::nullopt);
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 0);
    EXPECT_FALSE(engine().isTicking());
    EXPECT_EQ(platform.ticker.running(), 0U);
    EXPECT_TRUE(smartPause().samples.empty());
    EXPECT_EQ(happened(), "");
}

TEST_F(StartTest, TheConfigOfCreationIsThatOfThePreferences) {
    prefer("workIntervalSeconds", 900.0);
    EXPECT_EQ(create().config().workInterval, 900.0);
}

TEST_F(StartTest, StartConnectsTheMonitorBeforeTheFirstWorkInterval) {
    create().start();
    EXPECT_EQ(happened(), lines({"08:00:00 monitor starts",
                                 "08:00:00 log work 20 min → break at 08:20 (next break long: false)"}));
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(engine().nextBreakAt(), at("08:20:00"));
    EXPECT_EQ(engine().currentPhaseTotal(), 1200.0);
    EXPECT_TRUE(engine().isTicking());
    EXPECT_EQ(platform.ticker.running(), 1U);
}

TEST_F(StartTest, TheTimerTicksOnceASecond) {
    start();
    EXPECT_EQ(platform.ticker.periods(), std::vector<double>{1.0});
}

TEST_F(StartTest, TheFirstWorkIntervalBeginsAtTheStartAndNotAtTheCreation) {
    create();
    pass(3600);
    engine().start();
    EXPECT_EQ(state(), "working until 09:20:00");
    EXPECT_EQ(engine().now(), at("08:00:00")) << "now moves with the tick";
    forget();
}

TEST_F(StartTest, SettingsChangedBeforeTheStartAreInForce) {
    create();
    prefer("workIntervalSeconds", 600.0);
    engine().start();
    EXPECT_EQ(happened(), lines({"08:00:00 monitor starts",
                                 "08:00:00 log work 10 min → break at 08:10 (next break long: false)"}));
}

TEST_F(StartTest, ASecondStartMakesNoSecondTimerAndDoesNotRestartTheInterval) {
    start();
    run(60);
    engine().start();
    EXPECT_EQ(platform.ticker.running(), 1U);
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(happened(), "");
}

TEST_F(StartTest, AStartWhileABreakWasBegunByHandGoesToWork) {
    platform.programFocus.setActive(true);
    create().beginBreak(now());
    engine().start();
    EXPECT_EQ(happened(), lines({"08:00:00 log break 20 s → ends 08:00", "08:00:00 monitor starts",
                                 "08:00:00 log work 20 min → break at 08:20 (next break long: false)"}));
}

TEST_F(StartTest, TheTimerTicksAtTheClocksTime) {
    tracesTicks = true;
    start();
    run(2, 1.5);
    EXPECT_EQ(happened(), lines({"08:00:01.5 onTick 08:00:01.5", "08:00:03 onTick 08:00:03"}));
    EXPECT_EQ(engine().now(), at("08:00:03"));
}

TEST_F(StartTest, ATickBeforeTheStartChangesNothingButNow) {
    tracesTicks = true;
    create().tick(at("09:00:00"));
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(engine().now(), at("09:00:00"));
    EXPECT_TRUE(smartPause().samples.empty());
    EXPECT_EQ(happened(), lines({"08:00:00 onTick 09:00:00"}));
}

TEST_F(StartTest, ADayChangeBeforeTheStartCallsNobody) {
    create().tick(at("2026-03-10 09:00:00"));
    EXPECT_EQ(engine().rollover().currentDayStart(), at("2026-03-10 00:00:00"));
    settle();
    EXPECT_EQ(happened(), "");
}

TEST_F(StartTest, ShutDownEndsTheTimerThenTheMonitorAndRecordsNothing) {
    platform.programFocus.setActive(true);
    startBreak();
    engine().shutDown();
    settle();
    EXPECT_EQ(platform.ticker.running(), 0U);
    EXPECT_FALSE(engine().isTicking());
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(engine().nextBreakAt(), std::nullopt);
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    EXPECT_EQ(happened(), lines({"08:20:00 monitor stops"}));
}

TEST_F(StartTest, ShutDownLeavesNoBreakToCome) {
    start();
    engine().shutDown();
    EXPECT_EQ(engine().nextBreakAt(), std::nullopt);
    EXPECT_EQ(engine().timeUntilNextBreak(), 0.0);
    EXPECT_EQ(happened(), lines({"08:00:00 monitor stops"}));
}

TEST_F(StartTest, ShutDownDuringAPauseRecordsNothing) {
    start();
    engine().pause(PauseReason::manual);
    forget();
    pass(60);
    engine().shutDown();
    settle();
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(happened(), lines({"08:01:00 monitor stops"}));
}

TEST_F(StartTest, ShutDownBeforeTheStartIsHarmless) {
    create().shutDown();
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(happened(), lines({"08:00:00 monitor stops"}));
}

TEST_F(StartTest, AfterShutDownTheTimerDoesNothing) {
    start();
    engine().shutDown();
    forget();
    run(1300);
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(happened(), "");
}

using StartDeathTest = StartTest;

TEST_F(StartDeathTest, ATickOffTheMainThreadIsAFault) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    start();
    forget();
    EXPECT_DEATH(std::thread([this] { platform.ticker.fire(); }).join(), "a tick came off the main thread");
}

} // namespace
} // namespace kestrelfen
