#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class BreakPausingTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(BreakPausingTest, ABreakKeepsItsRestAndItsRecordHoldsThePause) {
    startBreak();
    tickAt("08:20:08");
    engine().pause(PauseReason::screenLocked);
    EXPECT_EQ(happened(), lines({"08:20:08 log paused (screenLocked, 0:12 left)"}));
    EXPECT_EQ(engine().breakRemaining(), 12.0);
    EXPECT_EQ(engine().elapsedInCurrentBreak(), 0.0) << "only a running break has an elapsed time";
    pass(600);
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:30:08 log resumed break (0:12 left)",
                                 "08:30:08 record screenLocked pause from 08:20:08, 600 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "onBreak until 08:30:20");
    EXPECT_EQ(engine().breakRemaining(), 12.0);
    EXPECT_EQ(engine().elapsedInCurrentBreak(), 8.0);
    EXPECT_EQ(engine().currentPhaseTotal(), 20.0);
    EXPECT_EQ(engine().nextBreakAt(), std::nullopt);
    tickAt("08:30:20");
    EXPECT_EQ(happened(),
              lines({"08:30:20 onWorkIntervalCompleted", "08:30:20 log break complete (today: 1)",
                     "08:30:20 log work 20 min → break at 08:50 (next break long: false)",
                     "08:30:20 record completed short break from 08:20:00, 620 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
}

TEST_F(BreakPausingTest, APausedBreakIsNeitherCompletedNorSkipped) {
    startBreak();
    engine().pause(PauseReason::manual);
    forget();
    run(100);
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
    EXPECT_EQ(happened(), "");
}

TEST_F(BreakPausingTest, ALongBreakComesBackLongWithItsTotal) {
    prefer("longBreakEvery", 2);
    startBreak();
    tickAt("08:20:20");
    tickAt("08:40:20");
    engine().pause(PauseReason::manual);
    run(60);
    engine().resume(now());
    EXPECT_TRUE(engine().currentBreakIsLong());
    EXPECT_EQ(engine().currentPhaseTotal(), 300.0);
    EXPECT_EQ(engine().breakRemaining(), 300.0);
    forget();
    settle();
    forget();
}

} // namespace
} // namespace kestrelfen
