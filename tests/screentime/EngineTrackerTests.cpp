#include "screentime/TrackerHarness.hpp"
#include "support/EngineHarness.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

/// The tracker behind a real engine, joined as the program joins them.
class EngineTrackerTest : public testing::Test, public EngineHarness {
  protected:
    EngineTrackerTest() {
        platform.programFocus.setActive(true);
        platform.applications.start({"org.editor", "Editor", 1}, 1);
        platform.applications.setFrontmost(1);
        screenTime.openStore();
    }

    /// The engine's own lines are not what these tests are about.
    void startBoth() {
        start();
        screenTime.create();
        engine().onTick = [this](Date date) {
            screenTime.tracker->sample(date, engine().state(), engine().config().idleThreshold);
        };
        engine().onDayRollover = [this](Date dayStart) {
            platform.mainQueue.post([this, dayStart] { screenTime.tracker->handleRollover(dayStart); });
        };
    }

    void runBoth(int ticks) {
        for (; ticks > 0; --ticks) {
            run(1);
            screenTime.settle();
        }
    }

    double today() { return screenTime.tracker->todayActiveSeconds(); }

    TrackerHarness screenTime{platform, trace};
};

TEST_F(EngineTrackerTest, ABreakIsNotScreenTime) {
    startBoth();
    runBoth(1199);
    EXPECT_EQ(today(), 1198);
    runBoth(1);
    EXPECT_EQ(stateText(engine().state()), "onBreak until 08:20:20");
    EXPECT_EQ(today(), 1198) << "the tick that begins it is not";
    runBoth(20);
    EXPECT_EQ(stateText(engine().state()), "working until 08:40:20");
    EXPECT_EQ(today(), 1198) << "the tick that ends it only starts the clock";
    runBoth(10);
    EXPECT_EQ(today(), 1208);
    EXPECT_EQ(screenTime.stored(at("00:00:00")), lines({"active: 1198", "org.editor 'Editor' 1: 1198"}))
        << "written when the break began";
}

TEST_F(EngineTrackerTest, AnAbsenceCountsUpToTheThreshold) {
    prefer("idleMode", std::string("custom"));
    prefer("idleThresholdSeconds", 60.0);
    startBoth();
    runBoth(101);
    platform.inputIdle.setAway();
    runBoth(300);
    EXPECT_EQ(stateText(engine().state()), "paused (userIdle)");
    EXPECT_EQ(today(), 100 + 60);
    platform.inputIdle.setActive();
    runBoth(5);
    EXPECT_EQ(today(), 160 + 4);
}

TEST_F(EngineTrackerTest, AMeetingWithoutInputCounts) {
    startBoth();
    runBoth(1);
    platform.inputIdle.setAway();
    smartPause().found = SmartPauseKind::meetings;
    runBoth(3600);
    EXPECT_EQ(stateText(engine().state()), "paused (meeting)");
    EXPECT_EQ(today(), 3600);
}

TEST_F(EngineTrackerTest, ASleepIsDroppedWithOrWithoutItsSignal) {
    startBoth();
    runBoth(11);
    pass(300);
    runBoth(11);
    EXPECT_EQ(today(), 20);
    sendPause(PauseReason::systemSleep);
    pass(300);
    sendResume(PauseReason::systemSleep);
    runBoth(11);
    EXPECT_EQ(today(), 30);
}

TEST_F(EngineTrackerTest, TheSecondThatCrossesMidnightIsCreditedToTheOldDay) {
    jumpTo("23:59:50");
    startBoth();
    runBoth(9);
    EXPECT_EQ(today(), 8);
    runBoth(1);
    EXPECT_EQ(screenTime.tracker->dayStart(), at("2026-03-10 00:00:00"));
    EXPECT_EQ(today(), 0);
    EXPECT_EQ(screenTime.stored(at("00:00:00")), lines({"active: 9", "org.editor 'Editor' 1: 9"}));
    runBoth(1);
    EXPECT_EQ(today(), 0);
    runBoth(1);
    EXPECT_EQ(today(), 1);
}

TEST_F(EngineTrackerTest, ADayThatTurnsDuringABreakCreditsNothingAcrossMidnight) {
    prefer("workIntervalSeconds", 60.0);
    prefer("breakDurationSeconds", 20.0);
    jumpTo("23:58:50");
    startBoth();
    runBoth(61);
    EXPECT_EQ(stateText(engine().state()), "onBreak until 2026-03-10 00:00:10");
    EXPECT_EQ(today(), 58);
    runBoth(19);
    EXPECT_EQ(stateText(engine().state()), "working until 2026-03-10 00:01:10");
    EXPECT_EQ(today(), 0);
    runBoth(2);
    EXPECT_EQ(today(), 2);
    EXPECT_EQ(screenTime.stored(at("00:00:00")), lines({"active: 58", "org.editor 'Editor' 1: 58"}));
}

} // namespace
} // namespace kestrelfen
