#include "SimulatorRun.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

const std::string note = "{\"note\":\"not available\"}\n";

std::string outputOf(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

void expectHeld(const std::string& scenario) {
    const SimulatorRun run = simulate(scenario);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "");
}

std::string storeError(const std::string& text) {
    return R"({"event":"log","at":"2026-03-09T08:00:00.000Z","level":"error","category":"Store","text":")" +
           text + "\"}\n";
}

TEST(Store, BrokenFailsTheNextLaunchOnly) {
    EXPECT_EQ(outputOf("launch\nevents on\nstore broken\n", "task add a\nexpect tasks rows.count 1\n"), "");
    const std::string said = outputOf("store broken\nevents on\n", "launch\nstore ok\ntask toggle a\n");
    EXPECT_EQ(said.substr(0, said.find('\n') + 1), storeError("store unavailable: failed"));
    EXPECT_TRUE(said.ends_with(note));
    expectHeld("store broken\nlaunch\nkill\nstore ok\nlaunch\ntask add a\nexpect tasks rows.count 1\n");
    expectHeld("store broken\nlaunch\nquit\nlaunch\nexpect-event log text "
               "\"right click enabled on the status item\"\ntask add a\nexpect tasks rows.count 0\n");
}

TEST(Store, BrokenIsToldWithItsDescription) {
    const std::string said = outputOf("store broken \"no space \\\"left\\\"\"\nevents on\n", "launch\n");
    EXPECT_EQ(said.substr(0, said.find('\n') + 1), storeError(R"(store unavailable: no space \"left\")"));
}

TEST(Store, FailingOperationTellsItsLineAndAnswersAsIfEmpty) {
    EXPECT_EQ(
        outputOf("launch\ntask add a\nstore failing \"disk full\"\nevents on\n",
                 "show tasks\nshow day\nshow history 2026-03-09 5\nshow csv\nstore working\nshow day\n"),
        storeError("tasks failed: disk full") + "{\"show\":\"tasks\",\"rows\":[]}\n" +
            storeError("summary failed: disk full") +
            R"({"show":"day","startOfDay":"2026-03-09T00:00:00.000Z","breaksCompleted":0,)"
            R"("breaksSkipped":0,"activeSeconds":0.0,"pausedSeconds":0.0,"longBreaksCompleted":0})"
            "\n" +
            storeError("history failed: disk full") + "{\"show\":\"history\",\"rows\":[]}\n" +
            storeError("history failed: disk full") +
            R"({"show":"csv","text":"started_at,type,duration_seconds,task,displays\n"})"
            "\n"
            R"({"show":"day","startOfDay":"2026-03-09T00:00:00.000Z","breaksCompleted":0,)"
            R"("breaksSkipped":0,"activeSeconds":0.0,"pausedSeconds":0.0,"longBreaksCompleted":0})"
            "\n");
}

TEST(Store, FailedFlushTellsItsLinesFirst) {
    const std::string at = R"("at":"2026-03-09T08:00:30.000Z",)";
    EXPECT_EQ(outputOf(std::string(launched) + "run 29\nstore failing full\nevents on\n", "run 1\n"),
              R"({"event":"log",)" + at +
                  R"("level":"error","category":"Store","text":"addActiveTime failed: full"})"
                  "\n" +
                  R"({"event":"log",)" + at +
                  R"-("level":"info","category":"ScreenTime","text":"flushed 1 bucket(s)"})-"
                  "\n" +
                  R"({"event":"flush",)" + at + R"("buckets":1,"sites":0})" + "\n");
}

TEST(Store, FailingIsSaidPlainlyWithoutADescription) {
    EXPECT_EQ(outputOf("launch\nstore failing\nevents on\n", "delete-all-history\n"),
              storeError("deleteAllHistory failed: failed"));
}

TEST(Store, FailingOutlivesARelaunchAndLeavesNothing) {
    expectHeld(std::string(launched) +
               "store failing\ndo begin-break\nrun 20\nexpect engine "
               "breaksCompletedToday 1\nquit\nlaunch\n"
               "expect-event log text \"summary failed: failed\"\n"
               "expect engine breaksCompletedToday 0\nstore working\n"
               "expect day breaksCompleted 0\nexpect history 2026-03-09 5 rows.count 0\n");
}

TEST(Store, WithoutOneTheReadingsAreThoseOfAnEmptyOne) {
    const std::string lines = "show day\nshow days 2026-03-09\nshow apps 5\nshow sites 5\nshow app-totals "
                              "2026-03-01\nshow site-totals 2026-03-01\nshow stretch\nshow history "
                              "2026-03-01 5\nshow csv\nshow tasks\n";
    const std::string without = outputOf("store broken\nlaunch\n", lines);
    EXPECT_EQ(without, outputOf("launch\n", lines));
    EXPECT_EQ(linesOf(without).size(), 10U);
}

TEST(Store, WithoutOneItsControlsAreNotAvailable) {
    EXPECT_EQ(outputOf("store broken\nlaunch\n",
                       "export f\ndelete-all-history\ntask activate a\ntask toggle a\ntask delete a\n"
                       "task clear-completed\n"),
              note + note + note + note + note + note);
    EXPECT_EQ(outputOf("store broken\nlaunch\n", "task add a\ntask add \" \"\n"), "");
}

TEST(Store, ExportWritesWhatTheReadingShows) {
    const TemporaryFolder folder;
    const std::string file = (folder / "history.csv").string();
    const std::string said = outputOf(inBreak, "run 20\nexport " + file + "\nshow csv\n");
    EXPECT_EQ(contentOf(file),
              "started_at,type,duration_seconds,task,displays\n2026-03-09T08:20:00Z,Completed,20,,1\n");
    EXPECT_EQ(said, R"({"show":"csv","text":"started_at,type,duration_seconds,task,displays\n)"
                    R"(2026-03-09T08:20:00Z,Completed,20,,1\n"})"
                    "\n");
    EXPECT_EQ(folder.names(), std::set<std::string>{"history.csv"});
}

TEST(Store, ExportThatCannotBeWrittenPrintsNothing) {
    const TemporaryFolder folder;
    EXPECT_EQ(outputOf(launched, "export " + (folder / "no" / "history.csv").string() + "\nexport " +
                                     folder.path().string() + "\nexport \"\"\n"),
              "");
    EXPECT_EQ(folder.names(), std::set<std::string>());
}

TEST(Store, ExportReachesTenYearsBack) {
    const std::string scenario = "clock 2016-03-10T12:00:00Z\npref hasCompletedOnboarding bool true\n"
                                 "pref historyRetentionDays int 0\nlaunch\ndo begin-break\nrun 20\nquit\n";
    // 3650 days before 2026-03-09 is 2016-03-11.
    expectHeld(scenario + "clock 2026-03-08T12:00:00Z\nlaunch\nexpect csv text "
                          "\"started_at,type,duration_seconds,task,displays\\n"
                          "2016-03-10T12:00:00Z,Completed,20,,1\\n\"\n");
    expectHeld(scenario + "clock 2026-03-09T12:00:00Z\nlaunch\nexpect csv text "
                          "\"started_at,type,duration_seconds,task,displays\\n\"\n");
}

TEST(Store, DeletingAllHistoryLeavesTasksPreferencesAndTheRunningDay) {
    expectHeld(std::string(inBreak) + "run 20\ntask add a\nexpect day breaksCompleted 1\n"
                                      "delete-all-history\n"
                                      "expect-event log text \"deleted all history: 1 day record(s)\"\n"
                                      "expect days 2026-03-01 days.count 0\nexpect day breaksCompleted 0\n"
                                      "expect history 2026-03-09 5 rows.count 0\nexpect tasks rows.count 1\n"
                                      "expect engine breaksCompletedToday 1\n"
                                      "expect tracker todayActiveSeconds 1198\n"
                                      "do begin-break\nrun 20\nexpect day breaksCompleted 1\n");
}

} // namespace
} // namespace kestrelfen
