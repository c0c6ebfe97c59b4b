#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string shown(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

/// One minute in a browser on the second display and in a program of unknown name, then a long pause.
constexpr std::string_view usedAMinute = "pref hasCompletedOnboarding bool true\n"
                                         "pref websiteStats.safari bool true\n"
                                         "displays 2\n"
                                         "browser safari permission granted\n"
                                         "browser safari url https://www.Example.org:8080/a?b#c\n"
                                         "app start com.apple.Safari Safari 10 2\n"
                                         "app start org.editor - 11\n"
                                         "front 10\n"
                                         "launch\n"
                                         "run 41\n"
                                         "front 11\n"
                                         "run 20\n"
                                         "do pause\n"
                                         "run 9\n"
                                         "do resume\n";

TEST(HistoryReading, Day) {
    EXPECT_EQ(
        shown(usedAMinute, "do begin-break\nrun 20\nshow day\nshow day 2026-03-09"),
        R"({"show":"day","startOfDay":"2026-03-09T00:00:00.000Z","breaksCompleted":1,"breaksSkipped":0,)"
        R"("activeSeconds":69.0,"pausedSeconds":9.0,"longBreaksCompleted":0})"
        "\n"
        R"({"show":"day","startOfDay":"2026-03-09T00:00:00.000Z","breaksCompleted":1,"breaksSkipped":0,)"
        R"("activeSeconds":69.0,"pausedSeconds":9.0,"longBreaksCompleted":0})"
        "\n");
}

TEST(HistoryReading, DayWithoutARow) {
    EXPECT_EQ(
        shown(usedAMinute, "show day 2026-03-08"),
        R"({"show":"day","startOfDay":"2026-03-08T00:00:00.000Z","breaksCompleted":0,"breaksSkipped":0,)"
        R"("activeSeconds":0.0,"pausedSeconds":0.0,"longBreaksCompleted":0})"
        "\n");
}

TEST(HistoryReading, DayIsTheZonesOwn) {
    EXPECT_EQ(simulate("zone Europe/Berlin\nlaunch\nexpect day startOfDay 2026-03-08T23:00:00.000Z\n"
                       "expect day 2026-03-29 startOfDay 2026-03-28T23:00:00.000Z\n"
                       "expect day 2026-03-30 startOfDay 2026-03-29T22:00:00.000Z\n"
                       "clock 2026-03-29T22:30:00Z\nexpect day startOfDay 2026-03-29T22:00:00.000Z\n")
                  .errors,
              "");
}

TEST(HistoryReading, Days) {
    EXPECT_EQ(shown(launched,
                    "do begin-break\nrun 20\nclock 2026-03-10T08:00:00Z\ntick\ndo begin-break\nrun 5\n"
                    "press overlay skip\nshow days 2026-03-09\nshow days 2026-03-11\n"
                    "expect days 2026-03-10 days.count 1\nexpect days 2026-03-09 days.0.breaksSkipped 1\n"),
              R"({"show":"days","days":[{"startOfDay":"2026-03-10T00:00:00.000Z","breaksCompleted":0,)"
              R"("breaksSkipped":1,"activeSeconds":0.0,"pausedSeconds":0.0,"longBreaksCompleted":0},)"
              R"({"startOfDay":"2026-03-09T00:00:00.000Z","breaksCompleted":1,"breaksSkipped":0,)"
              R"("activeSeconds":0.0,"pausedSeconds":0.0,"longBreaksCompleted":0}]})"
              "\n"
              R"({"show":"days","days":[]})"
              "\n");
}

TEST(HistoryReading, Apps) {
    EXPECT_EQ(shown(usedAMinute, "quit\nlaunch\nshow apps 5\nshow apps 1 2026-03-09\nshow apps 0\n"
                                 "show apps 5 2026-03-08\n"),
              R"({"show":"apps","rows":[{"bundleIdentifier":"com.apple.Safari","displayName":"Safari",)"
              R"("displayID":2,"activeSeconds":40.0},{"bundleIdentifier":"org.editor",)"
              R"("displayName":"Unattributed","displayID":0,"activeSeconds":29.0}]})"
              "\n"
              R"({"show":"apps","rows":[{"bundleIdentifier":"com.apple.Safari","displayName":"Safari",)"
              R"("displayID":2,"activeSeconds":40.0}]})"
              "\n"
              R"({"show":"apps","rows":[]})"
              "\n"
              R"({"show":"apps","rows":[]})"
              "\n");
}

TEST(HistoryReading, Sites) {
    EXPECT_EQ(shown(usedAMinute, "show sites 5\nshow sites 0\nshow sites 5 2026-03-08\n"),
              R"({"show":"sites","rows":[{"domain":"example.org","activeSeconds":40.0}]})"
              "\n"
              R"({"show":"sites","rows":[]})"
              "\n"
              R"({"show":"sites","rows":[]})"
              "\n");
}

TEST(HistoryReading, Totals) {
    EXPECT_EQ(shown(usedAMinute, "quit\nlaunch\nshow app-totals 2026-03-01\nshow site-totals 2026-03-01\n"
                                 "show app-totals 2026-03-10\nshow site-totals 2026-03-10\n"),
              R"({"show":"app-totals","rows":[{"bundleIdentifier":"com.apple.Safari","displayName":"Safari",)"
              R"("activeSeconds":40.0,"displayCount":1},{"bundleIdentifier":"org.editor",)"
              R"("displayName":"Unattributed","activeSeconds":29.0,"displayCount":1}]})"
              "\n"
              R"({"show":"site-totals","rows":[{"domain":"example.org","activeSeconds":40.0,"dayCount":1}]})"
              "\n"
              R"({"show":"app-totals","rows":[]})"
              "\n"
              R"({"show":"site-totals","rows":[]})"
              "\n");
}

TEST(HistoryReading, Stretch) {
    EXPECT_EQ(shown(launched, "show stretch\ndo begin-break\nrun 20\nsleep 100\nshow stretch\n"
                              "show stretch 2026-03-09\nshow stretch 2026-03-08\n"),
              "{\"show\":\"stretch\",\"seconds\":0.0}\n"
              "{\"show\":\"stretch\",\"seconds\":100.0}\n"
              "{\"show\":\"stretch\",\"seconds\":100.0}\n"
              "{\"show\":\"stretch\",\"seconds\":0.0}\n");
}

TEST(HistoryReading, History) {
    EXPECT_EQ(
        shown("displays 2\npref longBreakEvery int 3\n",
              std::string(launched) +
                  "task add a\ntask activate a\ndo begin-break\nrun 20\nrun 10\ndo pause\nrun 60\ndo resume\n"
                  "do begin-break\nrun 5\npress overlay skip\nrun 1\ndo begin-break\nrun 300\n"
                  "show history 2026-03-09 9\n"),
        R"({"show":"history","rows":[{"startedAt":"2026-03-09T08:01:36.000Z","kind":"completed","isLong":true,)"
        R"("reason":null,"seconds":300.0,"taskTitle":"a","displayCount":2},)"
        R"({"startedAt":"2026-03-09T08:01:30.000Z","kind":"skipped","isLong":null,"reason":null,"seconds":null,)"
        R"("taskTitle":"a","displayCount":2},{"startedAt":"2026-03-09T08:00:30.000Z","kind":"paused",)"
        R"("isLong":null,"reason":"manual","seconds":60.0,"taskTitle":null,"displayCount":0},)"
        R"({"startedAt":"2026-03-09T08:00:00.000Z","kind":"completed","isLong":false,"reason":null,)"
        R"("seconds":20.0,"taskTitle":"a","displayCount":2}]})"
        "\n");
}

TEST(HistoryReading, HistoryKeepsToItsDayAndLimit) {
    EXPECT_EQ(simulate(std::string(inBreak) +
                       "run 20\ndo begin-break\nrun 20\nexpect history 2026-03-09 1 rows.count 1\n"
                       "expect history 2026-03-09 1 rows.0.startedAt 2026-03-09T08:20:20.000Z\n"
                       "expect history 2026-03-09 0 rows.count 0\nexpect history 2026-03-10 9 rows.count 0\n"
                       "expect history 2026-01-01 9 rows.count 2\n")
                  .errors,
              "");
}

TEST(HistoryReading, CsvOfAnEmptyHistoryIsItsHeader) {
    EXPECT_EQ(shown("launch\n", "show csv\n"),
              R"({"show":"csv","text":"started_at,type,duration_seconds,task,displays\n"})"
              "\n");
}

TEST(HistoryReading, TasksOfNone) {
    EXPECT_EQ(shown("launch\n", "show tasks\n"), "{\"show\":\"tasks\",\"rows\":[]}\n");
}

TEST(HistoryReading, PutsNoEventOnRecord) {
    EXPECT_EQ(shown(launched, "forget-events\nevents on\nshow stretch\nexpect tasks rows.count 0\n"),
              "{\"show\":\"stretch\",\"seconds\":0.0}\n");
}

} // namespace
} // namespace kestrelfen
