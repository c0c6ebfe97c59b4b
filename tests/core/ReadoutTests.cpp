#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class ReadoutTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    std::string read() {
        return "next " + secondsText(engine().timeUntilNextBreak()) + ", break " +
               secondsText(engine().breakRemaining()) + ", elapsed " +
               secondsText(engine().elapsedInCurrentBreak()) + ", progress " +
               secondsText(engine().phaseProgress()) + ", text " + engine().menuBarText();
    }
};

TEST_F(ReadoutTest, InIdleEverythingIsZero) {
    create();
    EXPECT_EQ(read(), "next 0, break 0, elapsed 0, progress 0, text --:--");
    EXPECT_FALSE(engine().isNextBreakLong());
    EXPECT_EQ(engine().cyclePosition(), 1);
}

TEST_F(ReadoutTest, InWorkTheyMeasureToTheNextBreak) {
    start();
    EXPECT_EQ(read(), "next 1200, break 0, elapsed 0, progress 0, text 20:00");
    tickAt("08:05:00.5");
    EXPECT_EQ(read(), "next 899.5, break 0, elapsed 0, progress 0.250417, text 15:00");
    tickAt("08:15:00");
    EXPECT_EQ(read(), "next 300, break 0, elapsed 0, progress 0.75, text 05:00");
}

TEST_F(ReadoutTest, InTheWarningTheyMeasureToTheNextBreak) {
    start();
    tickAt("08:19:54");
    EXPECT_EQ(read(), "next 6, break 0, elapsed 0, progress 0.995, text 00:06");
}

TEST_F(ReadoutTest, InABreakTheyMeasureToItsEnd) {
    startBreak();
    EXPECT_EQ(read(), "next 0, break 20, elapsed 0, progress 0, text 00:20");
    tickAt("08:20:05.25");
    EXPECT_EQ(read(), "next 0, break 14.75, elapsed 5.25, progress 0.2625, text 00:15");
}

TEST_F(ReadoutTest, InAPauseOfWorkTheyStandStill) {
    start();
    tickAt("08:05:00");
    engine().pause(PauseReason::manual);
    EXPECT_EQ(read(), "next 900, break 0, elapsed 0, progress 0.25, text 15:00");
    tickAt("08:50:00");
    EXPECT_EQ(read(), "next 900, break 0, elapsed 0, progress 0.25, text 15:00");
}

TEST_F(ReadoutTest, InAPauseOfTheWarningTheyStandStill) {
    start();
    tickAt("08:19:54");
    engine().pause(PauseReason::manual);
    tickAt("08:50:00");
    EXPECT_EQ(read(), "next 6, break 0, elapsed 0, progress 0.995, text 00:06");
}

TEST_F(ReadoutTest, InAPauseOfABreakTheProgressReadsAsOne) {
    startBreak();
    tickAt("08:20:05");
    engine().pause(PauseReason::manual);
    EXPECT_EQ(read(), "next 0, break 15, elapsed 0, progress 1, text 00:15");
    tickAt("08:50:00");
    EXPECT_EQ(read(), "next 0, break 15, elapsed 0, progress 1, text 00:15");
}

TEST_F(ReadoutTest, InAPauseAfterIdleTheTextIsZero) {
    create().pause(PauseReason::screenLocked);
    EXPECT_EQ(read(), "next 0, break 0, elapsed 0, progress 0, text 00:00");
}

TEST_F(ReadoutTest, PastTheEndOfABreakNothingIsNegative) {
    startBreak();
    bool looked = false;
    const Subscription subscription = engine().observe([&] {
        if (!looked && engine().now() > at("08:20:20")) {
            looked = true;
            EXPECT_EQ(read(), "next 0, break 0, elapsed 20, progress 1, text 00:00");
        }
    });
    tickAt("08:20:25");
    EXPECT_TRUE(looked) << "between the new now and the transition";
}

TEST_F(ReadoutTest, PastTheDueDateNothingIsNegative) {
    start();
    bool looked = false;
    const Subscription subscription = engine().observe([&] {
        if (!looked && engine().now() > at("08:20:00")) {
            looked = true;
            EXPECT_EQ(read(), "next 0, break 0, elapsed 0, progress 1, text 00:00");
        }
    });
    tickAt("08:20:05");
    EXPECT_TRUE(looked);
}

TEST_F(ReadoutTest, TheyMoveWithTheTickOnlyAndNotWithTheClock) {
    start();
    pass(100);
    EXPECT_EQ(read(), "next 1200, break 0, elapsed 0, progress 0, text 20:00");
}

TEST_F(ReadoutTest, WithTheClockSetBackMoreThanTheTotalMayBeLeft) {
    start();
    tickAt("07:00:00");
    EXPECT_EQ(read(), "next 4800, break 0, elapsed 0, progress 0, text 80:00");
    tickAt("05:00:00");
    EXPECT_EQ(read(), "next 12000, break 0, elapsed 0, progress 0, text 99:00");
}

TEST_F(ReadoutTest, WithTheClockSetBackABreakHasNoElapsedTime) {
    startBreak();
    tickAt("08:19:00");
    EXPECT_EQ(read(), "next 0, break 80, elapsed 0, progress 0, text 01:20");
}

TEST_F(ReadoutTest, ATotalOfZeroHasNoProgress) {
    prefer("workIntervalSeconds", 0.0);
    start();
    EXPECT_EQ(engine().phaseProgress(), 0.0);
}

TEST_F(ReadoutTest, ATotalBelowZeroHasNoProgress) {
    prefer("workIntervalSeconds", -60.0);
    start();
    EXPECT_EQ(read(), "next 0, break 0, elapsed 0, progress 0, text 00:00");
}

TEST_F(ReadoutTest, ATotalOfLessThanASecondHasProgress) {
    prefer("workIntervalSeconds", 0.5);
    start();
    tickAt("08:00:00.25");
    EXPECT_EQ(read(), "next 0.25, break 0, elapsed 0, progress 0.5, text 00:01");
}

TEST_F(ReadoutTest, WithARhythmOfFourTheNextBreakIsLongInPositionFour) {
    start();
    for (const std::int64_t position : {1, 2, 3, 4, 1}) {
        EXPECT_EQ(engine().cyclePosition(), position);
        EXPECT_EQ(engine().isNextBreakLong(), position == 4);
        engine().beginBreak(now());
        engine().completeBreak(now());
    }
    settle();
}

} // namespace
} // namespace kestrelfen
