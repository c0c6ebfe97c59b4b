#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

void expectHolds(const std::string& lines) {
    const SimulatorRun run = simulate(std::string(launched) + lines);
    EXPECT_EQ(run.status, 0) << run.errors;
}

TEST(Time, RunTicksAsOftenAsTheStepGoesWholeIntoTheLength) {
    expectHolds("run 0.3 0.1\nexpect engine now 2026-03-09T08:00:00.300Z\n");
    expectHolds("run 0.7 0.1\nexpect engine now 2026-03-09T08:00:00.700Z\n");
    expectHolds("run 1199.9 0.1\nexpect engine now 2026-03-09T08:19:59.900Z\n");
    expectHolds("run 2.5\nexpect engine now 2026-03-09T08:00:02.000Z\n");
    expectHolds("run 10 3\nexpect engine now 2026-03-09T08:00:09.000Z\n");
    expectHolds("run 5 7\nexpect engine now 2026-03-09T08:00:00.000Z\n");
    expectHolds("run 0\nexpect engine now 2026-03-09T08:00:00.000Z\n");
    expectHolds("run 0.000003 0.000001\ntick\nexpect engine timeUntilNextBreak 1199.999997\n");
}

TEST(Time, RunMovesTheClockByWholeStepsAlone) {
    expectHolds("run 2.5\ntick\nexpect engine now 2026-03-09T08:00:02.000Z\n");
}

TEST(Time, EachTickOfARunComesToRestBeforeTheNext) {
    expectHolds("run 1221\nexpect engine state working\nexpect-event windows call tearDownBreakWindows\n"
                "expect-event windows at 2026-03-09T08:20:20.000Z\n");
}

TEST(Time, SleepAndClockDoNotTick) {
    expectHolds("sleep 5000\nexpect engine state working\nexpect engine now 2026-03-09T08:00:00.000Z\n"
                "clock 2026-03-09T12:00:00.5Z\nexpect engine state working\ntick\n"
                "expect engine state onBreak\nexpect engine now 2026-03-09T12:00:00.500Z\n"
                "expect engine endsAt 2026-03-09T12:00:20.500Z\n");
}

TEST(Time, TickDoesNotMoveTheClock) {
    expectHolds("sleep 1\ntick\ntick\nexpect engine now 2026-03-09T08:00:01.000Z\n");
}

TEST(Time, WithoutAProgramTickAndRunMoveTheClockAlone) {
    const SimulatorRun run = simulate("tick\nrun 90.5 0.5\nbench 30\nlaunch\n"
                                      "expect engine now 2026-03-09T08:02:00.500Z\n");
    EXPECT_EQ(run.status, 0) << run.errors;
}

TEST(Time, TimerThatDoesNotRunDoesNotFire) {
    const SimulatorRun run = simulate("launch\nrun 60\nexpect engine now 2026-03-09T08:00:00.000Z\n"
                                      "finish-onboarding\nexpect engine endsAt 2026-03-09T08:21:00.000Z\n"
                                      "run 1\nexpect engine now 2026-03-09T08:01:01.000Z\n");
    EXPECT_EQ(run.status, 0) << run.errors;
}

TEST(Time, BenchPrintsItsTicks) {
    const SimulatorRun run =
        simulate(std::string(launched) + "bench 2000\nexpect engine breaksCompletedToday 1\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output.substr(0, run.output.rfind(':')), R"({"bench":"ticks","ticks":2000,"seconds")");
    EXPECT_GE(std::stod(run.output.substr(run.output.rfind(':') + 1)), 0.0);
}

} // namespace
} // namespace kestrelfen
