#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class PauseRecordTest : public EngineTest {
  protected:
    /// Pauses for that time and answers what was recorded.
    std::string recorded(double seconds, PauseReason reason = PauseReason::manual) {
        tick();
        engine().pause(reason);
        pass(seconds);
        engine().resume(now());
        forget();
        settle();
        return happened();
    }
};

TEST_F(PauseRecordTest, APauseUnderASecondLeavesNoTrace) {
    start();
    EXPECT_EQ(recorded(0.4), "");
    EXPECT_EQ(recorded(0.999999), "");
    EXPECT_TRUE(history.pauses().empty());
}

TEST_F(PauseRecordTest, APauseOfExactlyASecondIsRecorded) {
    start();
    EXPECT_EQ(recorded(1.0), lines({"08:00:01 record manual pause from 08:00:00, 1 s, day 2026-03-09"}));
}

TEST_F(PauseRecordTest, EachReasonIsRecordedAsTheKindOfItsName) {
    start();
    for (const PauseReason reason : allCases<PauseReason>()) {
        recorded(2.0, reason);
    }
    ASSERT_EQ(history.pauses().size(), allCases<PauseReason>().size());
    for (std::size_t index = 0; index < history.pauses().size(); ++index) {
        EXPECT_EQ(rawValue(history.pauses()[index].kind), rawValue(allCases<PauseReason>()[index]));
    }
}

TEST_F(PauseRecordTest, APauseThatTheClockTurnedNegativeLeavesNoTrace) {
    start();
    EXPECT_EQ(recorded(-100.0), "");
}

TEST_F(PauseRecordTest, APauseOverMidnightIsRecordedWholeOnTheNewDay) {
    jumpTo("23:59:00");
    start();
    engine().pause(PauseReason::manual);
    tickAt("2026-03-10 00:05:00");
    engine().resume(now());
    forget();
    settle();
    EXPECT_EQ(happened(), lines({"2026-03-10 00:05:00 record manual pause from 23:59:00, 360 s, "
                                 "day 2026-03-10"}));
}

TEST_F(PauseRecordTest, WithoutAStoreNothingIsRecorded) {
    hasStore = false;
    start();
    EXPECT_EQ(recorded(60.0), "");
    EXPECT_EQ(state(), "working until 08:21:00");
}

TEST_F(PauseRecordTest, TheRecordIsQueuedAndNotAwaited) {
    start();
    engine().pause(PauseReason::manual);
    pass(5);
    engine().resume(now());
    EXPECT_EQ(happened(), lines({"08:00:00 log paused (manual, 20:00 left)",
                                 "08:00:05 log resumed work (20:00 to break)"}));
    settle();
    EXPECT_EQ(happened(), lines({"08:00:05 record manual pause from 08:00:00, 5 s, day 2026-03-09"}));
}

TEST_F(PauseRecordTest, APauseLeftByABreakIsNotRecordedLater) {
    platform.programFocus.setActive(true);
    start();
    engine().pause(PauseReason::manual);
    pass(60);
    engine().beginBreak(now());
    tickAt("08:01:20");
    engine().pause(PauseReason::displaySleep);
    pass(10);
    engine().resume(now());
    settle();
    ASSERT_EQ(history.pauses().size(), 1U);
    EXPECT_EQ(history.pauses()[0].kind, PauseKind::displaySleep);
    EXPECT_EQ(history.pauses()[0].startedAt, at("08:01:20"));
    forget();
}

} // namespace
} // namespace kestrelfen
