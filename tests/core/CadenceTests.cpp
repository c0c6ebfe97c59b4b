#include "core/EngineTest.hpp"

#include <cstdlib>

namespace kestrelfen {
namespace {

/// Breaks of one after another, by hand: only their kinds matter here.
class CadenceTest : public EngineTest {
  protected:
    void SetUp() override {
        platform.programFocus.setActive(true);
        prefer("enforcementLevel", "casual");
    }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    char begin() {
        const std::int64_t position = engine().cyclePosition();
        EXPECT_EQ(engine().isNextBreakLong(), position == std::abs(engine().config().longBreakEvery));
        engine().beginBreak(now());
        return engine().currentBreakIsLong() ? 'L' : 's';
    }

    /// The kinds of the next breaks, each completed.
    std::string kinds(int count) {
        std::string text;
        for (int index = 0; index < count; ++index) {
            text += begin();
            engine().completeBreak(now());
        }
        return text;
    }
};

TEST_F(CadenceTest, WithTwoShortAndLongBreaksAlternate) {
    prefer("longBreakEvery", 2);
    start();
    EXPECT_EQ(kinds(6), "sLsLsL");
}

TEST_F(CadenceTest, WithFourEachFourthBreakIsLong) {
    start();
    EXPECT_EQ(kinds(12), "sssLsssLsssL");
}

TEST_F(CadenceTest, CyclePositionCountsFromOneToTheLongBreak) {
    start();
    std::string positions;
    for (int index = 0; index < 6; ++index) {
        positions += std::to_string(engine().cyclePosition());
        kinds(1);
    }
    EXPECT_EQ(positions, "123412");
}

TEST_F(CadenceTest, ASkippedBreakAdvancesLikeACompletedOne) {
    start();
    EXPECT_EQ(kinds(1), "s");
    EXPECT_EQ(begin(), 's');
    engine().skipCurrentBreak();
    EXPECT_EQ(kinds(3), "sLs");
}

TEST_F(CadenceTest, ASkipCanUseUpTheLongBreaksTurn) {
    start();
    EXPECT_EQ(kinds(3), "sss");
    EXPECT_EQ(begin(), 'L');
    engine().skipCurrentBreak();
    EXPECT_EQ(kinds(4), "sssL");
}

TEST_F(CadenceTest, ASnoozedLongBreakStaysLongAndHasItsFullLength) {
    start();
    kinds(3);
    EXPECT_EQ(begin(), 'L');
    pass(30);
    EXPECT_TRUE(engine().snooze(60, now()));
    EXPECT_TRUE(engine().isNextBreakLong());
    pass(60);
    tick();
    EXPECT_TRUE(engine().currentBreakIsLong());
    EXPECT_EQ(engine().breakRemaining(), 300.0);
    EXPECT_EQ(engine().currentPhaseTotal(), 300.0);
}

TEST_F(CadenceTest, APostponeAndAnAdvanceSkipLeaveTheLongBreakDue) {
    start();
    kinds(3);
    engine().postponeNextBreak(60, now());
    EXPECT_TRUE(engine().isNextBreakLong());
    engine().skipNextBreak();
    EXPECT_TRUE(engine().isNextBreakLong());
    EXPECT_EQ(begin(), 'L');
}

TEST_F(CadenceTest, AnEarlyEndAdvancesLikeAnyCompletedBreak) {
    start();
    kinds(3);
    begin();
    pass(240);
    tick();
    ASSERT_TRUE(engine().canEndBreakEarly());
    engine().completeBreak(now());
    EXPECT_EQ(engine().cyclePosition(), 1);
}

TEST_F(CadenceTest, BreakNowGivesALongBreakWhenOneIsDueWhoeverCalls) {
    start();
    kinds(3);
    engine().pause(PauseReason::manual);
    EXPECT_EQ(begin(), 'L');
    EXPECT_EQ(engine().breakRemaining(), 300.0);
}

TEST_F(CadenceTest, TheKindOfTheLastBreakIsKeptUntilTheNextBegins) {
    prefer("longBreakEvery", 2);
    start();
    EXPECT_EQ(kinds(2), "sL");
    EXPECT_TRUE(engine().currentBreakIsLong());
    EXPECT_EQ(begin(), 's');
    EXPECT_FALSE(engine().currentBreakIsLong());
}

TEST_F(CadenceTest, AChangedRhythmGoesOnFromTheBreaksAlreadyTaken) {
    start();
    EXPECT_EQ(kinds(2), "ss");
    prefer("longBreakEvery", 2);
    EXPECT_EQ(begin(), 's') << "the interval in progress keeps what it had";
    engine().completeBreak(now());
    EXPECT_EQ(engine().cyclePosition(), 2);
    EXPECT_EQ(kinds(3), "LsL");
}

TEST_F(CadenceTest, ARhythmOfOneCountsAsTwo) {
    prefer("longBreakEvery", 1);
    start();
    EXPECT_EQ(kinds(4), "sLsL");
}

TEST_F(CadenceTest, InTheFastCycleARhythmOfOneOrZeroMakesEveryBreakLong) {
    prefer("debugFastCycle", true);
    for (const std::int64_t every : {1, 0}) {
        prefer("longBreakEvery", every);
        create().start();
        EXPECT_EQ(kinds(3), "LLL") << every;
        EXPECT_EQ(engine().cyclePosition(), 1);
    }
}

TEST_F(CadenceTest, InTheFastCycleARhythmBelowZeroCountsAsIfItWereAbove) {
    prefer("debugFastCycle", true);
    prefer("longBreakEvery", -3);
    create().start();
    EXPECT_EQ(kinds(6), "ssLssL");
}

} // namespace
} // namespace kestrelfen
