#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string after(std::string_view before, std::string_view lines) {
    return std::string(before) + std::string(lines);
}

TEST(Expect, IsSilentWhereItHolds) {
    const SimulatorRun run = simulate(after(launched, "expect engine state working\n"
                                                      "expect engine endsAt 2026-03-09T08:20:00.000Z\n"
                                                      "expect engine reason null\n"
                                                      "expect engine canPostpone true\n"
                                                      "expect engine config.workInterval 1200\n"
                                                      "expect engine show engine\n"
                                                      "expect engine no.such.key null\n"));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output + run.errors, "");
}

TEST(Expect, ReportsWhatItGotAndGoesOn) {
    const SimulatorRun run = simulate(after(launched, "expect engine state onBreak\n"
                                                      "expect engine config.workInterval 900\n"
                                                      "expect engine reason manual\n"
                                                      "expect engine canSnooze true\n"
                                                      "expect engine endsAt null\n"
                                                      "show status-item\n"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "-:3: expected engine state onBreak, got working\n"
                          "-:4: expected engine config.workInterval 900, got 1200.0\n"
                          "-:5: expected engine reason manual, got null\n"
                          "-:6: expected engine canSnooze true, got false\n"
                          "-:7: expected engine endsAt null, got 2026-03-09T08:20:00.000Z\n");
    EXPECT_EQ(run.output, "{\"show\":\"status-item\",\"symbol\":\"eye\",\"text\":\"20:00\"}\n");
}

TEST(Expect, ComparesListsAndObjectsAsCompactJson) {
    const SimulatorRun run = simulate(
        after(inBreak, R"(expect overlay controls "[\"+1 min\",\"+3 min\",\"+5 min\",\"Skip in 5\"]")"
                       "\n"
                       R"(expect prefs values "{\"didRequestNotificationAuthorization\":true,)"
                       R"(\"hasCompletedOnboarding\":true,)"
                       R"(\"lastPrunedDayStart\":\"2026-03-09T00:00:00.000Z\"}")"
                       "\n"
                       "expect overlay controls []\n"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors,
              "-:6: expected overlay controls [], got [\"+1 min\",\"+3 min\",\"+5 min\",\"Skip in 5\"]\n");
}

TEST(Expect, ComparesATextThatLooksLikeANumberAsText) {
    const SimulatorRun run = simulate("pref a string 5\npref b int 5\n"
                                      "expect prefs values.a 5\nexpect prefs values.b 5.0\n"
                                      "expect prefs values.a 5.0\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "-:5: expected prefs values.a 5.0, got 5\n");
}

TEST(Expect, FindsKeysThatHaveDots) {
    const SimulatorRun run = simulate("pref snoozesPerDay int 3\n"
                                      "pref snoozesPerDay.count int 2\n"
                                      "pref snoozesPerDay.day date 2026-03-09T00:00:00Z\n"
                                      "pref list strings a b.c \"d e\"\n"
                                      "pref list.count int 9\n"
                                      "pref map dict a.b c.d\n"
                                      "expect prefs values.snoozesPerDay 3\n"
                                      "expect prefs values.snoozesPerDay.count 2\n"
                                      "expect prefs values.snoozesPerDay.day 2026-03-09T00:00:00.000Z\n"
                                      "expect prefs values.list.2 \"d e\"\n"
                                      "expect prefs values.list.count 9\n"
                                      "unpref list.count\n"
                                      "expect prefs values.list.count 3\n"
                                      "expect prefs values.map.a.b c.d\n"
                                      "expect prefs values.map.a null\n");
    EXPECT_EQ(run.status, 0) << run.errors;
}

TEST(Expect, StandardErrorFollowsWhatWasPrintedBefore) {
    const SimulatorRun run = runSimulator({"/dev/stdin"}, "show prefs\nexpect prefs values 1\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "{\"show\":\"prefs\",\"values\":{}}\n");
    EXPECT_EQ(run.errors, "/dev/stdin:2: expected prefs values 1, got {}\n");
}

TEST(ExpectEvent, ComparesTheLatestOfItsKindWithEventsOff) {
    const SimulatorRun run = simulate(after(inBreak, "expect-event windows call buildBreakWindows\n"
                                                     "expect-event windows count 1\n"
                                                     "expect-event windows at 2026-03-09T08:20:00.000Z\n"
                                                     "expect-event windows event windows\n"
                                                     "expect-event notification sound false\n"
                                                     "expect-event log text \"flushed 1 bucket(s)\"\n"
                                                     "expect-event log no.such.key null\n"));
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "");
}

TEST(ExpectEvent, ReportsWhatItGot) {
    const SimulatorRun run = simulate(after(inBreak, "expect-event windows count 2\n"
                                                     "expect-event lock at 2026-03-09T08:20:00.000Z\n"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "-:4: expected event windows count 2, got 1\n"
                          "-:5: expected event lock at 2026-03-09T08:20:00.000Z, got null\n");
}

TEST(ExpectEvent, KnowsEveryKindFromTheBeginning) {
    for (const std::string kind : {"log", "stdout", "authorization", "notification", "windows", "lock",
                                   "script", "audio", "dock", "login-item", "flush"}) {
        EXPECT_EQ(simulate("expect-event " + kind + " at null\n").status, 0) << kind;
    }
}

TEST(ExpectEvent, OutlivesQuitKillAndLaunchUntilForgotten) {
    const SimulatorRun run =
        simulate(after(inBreak, "quit\n"
                                "expect-event notification title \"Look away — 20 seconds\"\n"
                                "expect-event windows call tearDownBreakWindows\n"
                                "launch\nkill\n"
                                "expect-event notification title \"Look away — 20 seconds\"\n"
                                "launch\n"
                                "expect-event notification at 2026-03-09T08:20:00.000Z\n"
                                "forget-events\n"
                                "expect-event notification title null\n"
                                "expect-event log text null\n"));
    EXPECT_EQ(run.status, 0) << run.errors;
}

} // namespace
} // namespace kestrelfen
