#include "core/EngineScenario.hpp"
#include "core/Formatters.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace kestrelfen {
namespace {

constexpr std::uint64_t seeds = 150;
constexpr int stepsOfASeed = 250;

void expectPhase(const BreakEngine& engine) {
    switch (engine.state().phase()) {
    case BreakState::Case::working:
        EXPECT_EQ(engine.nextBreakAt(), engine.state().endsAt());
        break;
    case BreakState::Case::preBreakWarning:
        EXPECT_TRUE(engine.nextBreakAt());
        break;
    case BreakState::Case::onBreak:
        EXPECT_FALSE(engine.nextBreakAt());
        break;
    case BreakState::Case::paused:
        EXPECT_FALSE(engine.state().endsAt());
        break;
    case BreakState::Case::idle:
        EXPECT_FALSE(engine.isTicking());
        EXPECT_FALSE(engine.nextBreakAt());
        break;
    }
}

bool isClock(const std::string& text) {
    const auto isDigit = [&](std::size_t index) { return text[index] >= '0' && text[index] <= '9'; };
    return text.size() == 5 && isDigit(0) && isDigit(1) && text[2] == ':' && isDigit(3) && isDigit(4) &&
           text[3] < '6';
}

void expectReadOuts(const BreakEngine& engine) {
    const double next = engine.timeUntilNextBreak();
    const double rest = engine.breakRemaining();
    EXPECT_GE(next, 0.0);
    EXPECT_GE(rest, 0.0);
    EXPECT_GE(engine.phaseProgress(), 0.0);
    EXPECT_LE(engine.phaseProgress(), 1.0);
    EXPECT_GE(engine.elapsedInCurrentBreak(), 0.0);
    EXPECT_GE(engine.cyclePosition(), 1);
    EXPECT_LE(engine.cyclePosition(), std::abs(engine.config().longBreakEvery));
    EXPECT_EQ(engine.isNextBreakLong(), engine.cyclePosition() == std::abs(engine.config().longBreakEvery));
    const std::string text = engine.menuBarText();
    if (engine.state().is(BreakState::Case::idle)) {
        EXPECT_EQ(text, "--:--");
        return;
    }
    EXPECT_TRUE(isClock(text)) << text;
    EXPECT_TRUE(text == Formatters::clockCountdown(next) || text == Formatters::clockCountdown(rest)) << text;
}

void expectCounts(const BreakEngine& engine) {
    EXPECT_GE(engine.breaksCompletedToday(), 0);
    EXPECT_GE(engine.breaksSkippedToday(), 0);
    EXPECT_GE(engine.snoozesOnCurrentBreak(), 0);
    EXPECT_GE(engine.currentPhaseTotal(), 0.0);
}

void expectGates(EngineScenario& scenario) {
    const BreakEngine& engine = scenario.harness().engine();
    const EngineOracle& oracle = scenario.oracle();
    EXPECT_EQ(engine.canSnooze(), oracle.isSnoozeOpen());
    EXPECT_EQ(engine.canPostpone(), oracle.isPostponeOpen());
    EXPECT_EQ(engine.canSkipNextBreak(), oracle.isSkipNextOpen());
    EXPECT_EQ(engine.canSkipCurrentBreak(), oracle.isSkipCurrentOpen());
    EXPECT_EQ(engine.canEndBreakEarly(), oracle.isEndEarlyOpen());
}

/// Once everything that was queued has ended, the counts are those of the history.
void expectCountsOfHistory(EngineHarness& harness) {
    harness.settle();
    const auto recorded = [&](BreakOutcome outcome) {
        const auto& breaks = harness.history.breaks();
        return std::count_if(breaks.begin(), breaks.end(), [&](const BreakEntry& entry) {
            return entry.dayStart == harness.engine().rollover().currentDayStart() &&
                   entry.outcome == outcome;
        });
    };
    EXPECT_EQ(harness.engine().breaksCompletedToday(), recorded(BreakOutcome::completed));
    EXPECT_EQ(harness.engine().breaksSkippedToday(), recorded(BreakOutcome::skipped));
}

TEST(Invariants, HoldAfterEachStepOfRandomLives) {
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        EngineScenario scenario(seed);
        for (int step = 0; step < stepsOfASeed && !testing::Test::HasFailure(); ++step) {
            scenario.step();
            expectPhase(scenario.harness().engine());
            expectReadOuts(scenario.harness().engine());
            expectCounts(scenario.harness().engine());
            expectGates(scenario);
            if (step % 10 == 9) {
                expectCountsOfHistory(scenario.harness());
            }
        }
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << "\n" << scenario.story();
    }
}

} // namespace
} // namespace kestrelfen
