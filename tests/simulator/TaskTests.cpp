#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

const std::string note = "{\"note\":\"not available\"}\n";

std::string outputOf(const std::string& lines) {
    const SimulatorRun run = simulate(std::string(launched) + lines);
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

TEST(Task, IsAddedAndShownKeyByKey) {
    EXPECT_EQ(outputOf("run 1.5 0.5\ntask add \" Write\tit \"\ntask activate \"Write\tit\"\nshow tasks\n"),
              R"({"show":"tasks","rows":[{"title":"Write\tit","notes":"",)"
              R"("createdAt":"2026-03-09T08:00:01.500Z","completedAt":null,"dueOn":null,"sortIndex":0,)"
              R"("estimatedBreaks":0,"completedBreaks":0,"active":true}]})"
              "\n");
}

TEST(Task, BlankTitleAddsNothing) {
    EXPECT_EQ(outputOf("task add \"\"\ntask add \" \\n\t\"\nexpect tasks rows.count 0\n"), "");
}

TEST(Task, ActiveOneIsCreditedOncePerWorkInterval) {
    EXPECT_EQ(outputOf("task add a\ntask add b\ntask activate b\nrun 1220\n"
                       "expect tasks rows.1.completedBreaks 1\nexpect tasks rows.0.completedBreaks 0\n"
                       "run 1220\nexpect tasks rows.1.completedBreaks 2\n"
                       "task activate b\nrun 1220\nexpect tasks rows.1.completedBreaks 2\n"),
              "");
}

TEST(Task, ActivatingAgainClears) {
    EXPECT_EQ(outputOf("task add a\ntask activate a\nexpect engine activeTaskTitle a\n"
                       "expect prefs values.activeTaskID true\ntask activate a\n"
                       "expect engine activeTaskTitle null\nexpect prefs values.activeTaskID null\n"
                       "expect tasks rows.0.active false\n"),
              "");
}

TEST(Task, CompletingOrDeletingTheActiveOneClears) {
    for (const std::string end : {"task toggle a\n", "task delete a\n"}) {
        EXPECT_EQ(outputOf("task add a\ntask activate a\n" + end +
                           "expect engine activeTaskTitle null\nexpect prefs values.activeTaskID null\n"
                           "run 1220\nexpect tasks rows.0.completedBreaks " +
                           (end == "task delete a\n" ? "null" : "0") + "\n"),
                  "");
    }
}

TEST(Task, CompletingAnotherOneKeepsTheActiveOne) {
    EXPECT_EQ(outputOf("task add a\ntask add b\ntask activate a\ntask toggle b\ntask delete b\n"
                       "expect engine activeTaskTitle a\nexpect tasks rows.0.active true\n"),
              "");
}

TEST(Task, ReopeningBringsBackThePlaceButNotTheChoice) {
    EXPECT_EQ(
        outputOf("task add a\ntask add b\ntask activate a\ntask toggle a\n"
                 "expect tasks rows.0.title b\nexpect tasks rows.1.completedAt 2026-03-09T08:00:00.000Z\n"
                 "task toggle a\nexpect tasks rows.0.title a\nexpect tasks rows.0.completedAt null\n"
                 "expect tasks rows.0.active false\nexpect engine activeTaskTitle null\n"),
        "");
}

TEST(Task, CompletedOnesStandNewestFirst) {
    EXPECT_EQ(
        outputOf("task add a\ntask add b\ntask add c\ntask toggle a\nrun 1\ntask toggle c\n"
                 "expect tasks rows.0.title b\nexpect tasks rows.1.title c\nexpect tasks rows.2.title a\n"),
        "");
}

TEST(Task, FirstOfATitleIsMeant) {
    EXPECT_EQ(outputOf("task add a\ntask add a\nrun 1\ntask toggle a\nexpect tasks rows.0.sortIndex 1\n"
                       "expect tasks rows.1.sortIndex 0\ntask delete a\nexpect tasks rows.count 1\n"
                       "expect tasks rows.0.sortIndex 0\n"),
              "");
}

TEST(Task, ClearCompletedLeavesTheOpenOnes) {
    EXPECT_EQ(
        outputOf("task add a\ntask add b\ntask add c\ntask toggle a\ntask toggle b\ntask clear-completed\n"
                 "expect-event log text \"cleared 2 completed task(s)\"\n"
                 "expect tasks rows.count 1\nexpect tasks rows.0.title c\n"),
        "");
}

TEST(Task, WhatIsNotThereIsNotAvailable) {
    EXPECT_EQ(outputOf("task activate a\ntask toggle a\ntask delete a\ntask clear-completed\n"),
              note + note + note + note);
    EXPECT_EQ(outputOf("task add a\ntask activate A\ntask toggle \"a \"\ntask clear-completed\n"
                       "task toggle a\ntask activate a\nexpect engine activeTaskTitle null\n"),
              note + note + note + note);
}

TEST(Task, ListForgetsAnActiveTaskThatIsDoneOrGone) {
    const std::string done = "task add a\ntask add b\ntask activate a\n";
    EXPECT_EQ(outputOf(done + "store failing\ntask add c\nstore working\n"
                              "expect prefs values.activeTaskID null\nexpect engine activeTaskTitle null\n"
                              "expect tasks rows.count 2\n"),
              "");
    EXPECT_EQ(outputOf(done +
                       "pref activeTaskID string x\ntask toggle b\nexpect prefs values.activeTaskID null\n"
                       "expect engine activeTaskTitle null\n"),
              "");
}

TEST(Task, TitleOfTheActiveOneComesBackWithTheListAfterARelaunch) {
    EXPECT_EQ(outputOf("task add a\ntask activate a\nkill\nlaunch\nexpect engine activeTaskTitle null\n"
                       "expect tasks rows.0.active true\nrun 1220\nexpect tasks rows.0.completedBreaks 1\n"
                       "expect history 2026-03-09 1 rows.0.taskTitle null\n"
                       "task toggle b\nexpect engine activeTaskTitle a\nrun 1220\n"
                       "expect history 2026-03-09 1 rows.0.taskTitle a\n"),
              note);
}

TEST(Task, IsGoneFromTheListButNotFromTheHistory) {
    EXPECT_EQ(outputOf("task add a\ntask activate a\nrun 1220\ntask delete a\n"
                       "expect history 2026-03-09 1 rows.0.taskTitle a\nexpect tasks rows.count 0\n"),
              "");
}

} // namespace
} // namespace kestrelfen
