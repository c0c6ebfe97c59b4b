#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

class AccrualTest : public TrackerTest {
  protected:
    AccrualTest() { create(); }

    /// Whether the second tick of two in this state is credited.
    bool accruesIn(BreakState newState) {
        inState(newState);
        tick();
        return creditOf(1) > 0;
    }

    static std::vector<BreakState> pausesIn(std::initializer_list<PauseReason> reasons) {
        std::vector<BreakState> states;
        for (const PauseReason reason : reasons) {
            states.push_back(BreakState::paused(reason));
        }
        return states;
    }

    const std::vector<BreakState> never = [] {
        auto states = pausesIn({PauseReason::systemSleep, PauseReason::screenLocked,
                                PauseReason::displaySleep, PauseReason::userIdle});
        states.push_back(BreakState::onBreak(at("09:00:00")));
        states.push_back(BreakState::idle());
        return states;
    }();

    const std::vector<BreakState> withoutInput =
        pausesIn({PauseReason::meeting, PauseReason::videoPlayback, PauseReason::screenSharing,
                  PauseReason::focusApp});

    const std::vector<BreakState> withInput{BreakState::working(at("09:00:00")),
                                            BreakState::preBreakWarning(),
                                            BreakState::paused(PauseReason::manual)};
};

TEST_F(AccrualTest, TheStatesAreAll) {
    EXPECT_EQ(never.size() + withoutInput.size() + withInput.size(), 4U + allCases<PauseReason>().size());
}

TEST_F(AccrualTest, BreaksIdlenessAndAutomaticAbsencesNeverCount) {
    for (const BreakState& each : never) {
        EXPECT_FALSE(accruesIn(each)) << rawValue(each.phase());
    }
}

TEST_F(AccrualTest, WhatThePersonIsAtCountsWithoutInput) {
    platform.inputIdle.setAge(3600);
    for (const BreakState& each : withoutInput) {
        EXPECT_TRUE(accruesIn(each)) << rawValue(*each.reason());
    }
}

TEST_F(AccrualTest, WorkingAndManualPausesCountWhileThereIsInput) {
    for (const BreakState& each : withInput) {
        platform.inputIdle.setActive();
        EXPECT_TRUE(accruesIn(each)) << rawValue(each.phase());
        platform.inputIdle.setAge(61);
        EXPECT_FALSE(accruesIn(each)) << rawValue(each.phase());
    }
}

TEST_F(AccrualTest, NothingCountsWhileTheMainDisplaySleeps) {
    platform.displayPower.setAsleep(true);
    for (const auto& states : {never, withoutInput, withInput}) {
        for (const BreakState& each : states) {
            EXPECT_FALSE(accruesIn(each)) << rawValue(each.phase());
        }
    }
}

TEST_F(AccrualTest, AnInputAsOldAsTheThresholdStillCounts) {
    platform.inputIdle.setAge(60);
    EXPECT_TRUE(accruesIn(state));
    platform.inputIdle.setAge(60.001);
    EXPECT_FALSE(accruesIn(state));
    idleThreshold = 0;
    platform.inputIdle.setAge(0);
    EXPECT_TRUE(accruesIn(state));
}

TEST_F(AccrualTest, AnAgeThatNobodyCanTellNeverMakesThePersonIdle) {
    platform.inputIdle.setUnavailable();
    for (const BreakState& each : withInput) {
        EXPECT_TRUE(accruesIn(each)) << rawValue(each.phase());
    }
}

TEST_F(AccrualTest, TheRunUpToIdlenessStaysCounted) {
    tick();
    platform.inputIdle.setAway();
    run(60);
    EXPECT_EQ(tracker->todayActiveSeconds(), 60);
    run(1000);
    EXPECT_EQ(tracker->todayActiveSeconds(), 60);
    platform.inputIdle.setActive();
    run(3);
    EXPECT_EQ(tracker->todayActiveSeconds(), 62) << "the first tick only starts the clock";
}

TEST_F(AccrualTest, AMeetingWithoutInputCountsForAnHourWhileTheDisplayIsAwake) {
    platform.inputIdle.setAway();
    inState(BreakState::paused(PauseReason::meeting));
    run(3601);
    EXPECT_EQ(tracker->todayActiveSeconds(), 3600);
    platform.displayPower.setAsleep(true);
    run(3600);
    EXPECT_EQ(tracker->todayActiveSeconds(), 3600);
}

TEST_F(AccrualTest, ABreakCostsAtMostOneTickOnEachSide) {
    run(11);
    EXPECT_EQ(tracker->todayActiveSeconds(), 10);
    inState(BreakState::onBreak(at("09:00:00")));
    run(20);
    inState(BreakState::working(at("09:00:00")));
    run(11);
    EXPECT_EQ(tracker->todayActiveSeconds(), 20);
}

TEST_F(AccrualTest, AChangeBetweenTwoCountingStatesLosesNothing) {
    tick();
    for (const auto& states : {withInput, withoutInput}) {
        for (const BreakState& each : states) {
            inState(each);
            EXPECT_EQ(creditOf(1), 1) << rawValue(each.phase());
        }
    }
}

} // namespace
} // namespace kestrelfen
