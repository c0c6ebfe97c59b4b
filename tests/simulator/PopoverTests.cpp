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

TEST(Popover, IsShownKeyByKey) {
    EXPECT_EQ(outputOf("run 30.5\nshow popover\n"),
              R"({"show":"popover","eyebrow":"Next break in","value":"19 min 30 sec",)"
              R"("caption":"Then 20 s away from the screen.","cycleText":"Cycle 1 of 4",)"
              R"("ringRemaining":0.975,"ringLabel":"19:30",)"
              R"("buttons":[{"label":"Pause","enabled":true},{"label":"Skip","enabled":true},)"
              R"({"label":"Break Now","enabled":true}],"breaks":"0 / 0","completionRate":0.0,)"
              R"("screenTime":"29 s","skipped":0,"activeTask":null,"credits":null})"
              "\n");
}

TEST(Popover, WithAnActiveTask) {
    EXPECT_EQ(outputOf("task add \"Write it\"\ntask activate \"Write it\"\nrun 1220\n"
                       "expect popover activeTask \"Write it\"\nexpect popover credits 1\n"
                       "expect popover breaks \"1 / 1\"\nexpect popover completionRate 1\n"),
              "");
}

TEST(Popover, IsTheSameBeforeTheStart) {
    const SimulatorRun run = simulate("launch\nexpect popover eyebrow \"Not running\"\n"
                                      "expect popover buttons.1.enabled false\npress popover 2\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, note);
}

TEST(Popover, FirstButtonPausesAndResumes) {
    EXPECT_EQ(outputOf("press popover 1\nexpect engine reason manual\nexpect popover buttons.0.label Resume\n"
                       "press popover 2\npress popover 1\nexpect engine state working\n"),
              note);
}

TEST(Popover, SecondButtonSnoozesThenSkips) {
    EXPECT_EQ(outputOf("pref snoozeDurationSeconds double 120\npref snoozesPerDay int 1\nrun 1195\n"
                       "expect popover buttons.1.label Snooze\npress popover 2\n"
                       "expect engine timeUntilNextBreak 120\nrun 115\nexpect popover buttons.1.label Skip\n"
                       "press popover 2\nexpect engine timeUntilNextBreak 1200\n"),
              "");
}

TEST(Popover, ThirdButtonBeginsABreakAndSkipsIt) {
    EXPECT_EQ(outputOf("press popover 3\nexpect engine state onBreak\n"
                       "expect popover buttons.2.label \"End Break\"\npress popover 3\n"
                       "expect engine state onBreak\nrun 5\npress popover 3\nexpect engine state working\n"
                       "expect popover skipped 1\nexpect popover breaks \"0 / 1\"\n"),
              "");
}

TEST(Popover, ShowingItBringsTheTitleOfTheActiveTaskToTheEngine) {
    EXPECT_EQ(outputOf("task add a\ntask activate a\nkill\nlaunch\nexpect engine activeTaskTitle null\n"
                       "expect popover activeTask a\nexpect popover credits 0\n"
                       "expect engine activeTaskTitle a\nunpref activeTaskID\npress popover 1\n"
                       "expect engine activeTaskTitle null\n"),
              "");
}

TEST(Popover, WithoutAStoreItShowsNoTaskAndKeepsTheTitle) {
    EXPECT_EQ(outputOf("task add a\ntask activate a\nkill\nstore broken\nlaunch\n"
                       "expect popover activeTask null\nexpect popover credits null\n"
                       "expect prefs values.activeTaskID true\n"),
              "");
    EXPECT_EQ(outputOf("task add a\ntask activate a\nstore failing\nexpect popover activeTask null\n"
                       "expect engine activeTaskTitle null\nexpect prefs values.activeTaskID true\n"),
              "");
}

TEST(Popover, ItemsLeadToTheirWindows) {
    EXPECT_EQ(outputOf("go breaks\nexpect windows main true\nexpect windows mainTab breaks\n"
                       "expect windows policy regular\nexpect windows settings false\n"
                       "go tasks\nexpect windows mainTab tasks\n"
                       "go screenTime\nexpect windows mainTab screenTime\n"
                       "expect windows pendingUsageDetail null\n"
                       "tab tasks\ngo usageDetail\nexpect windows mainTab screenTime\n"
                       "close main\npane about\ngo settings\nexpect windows settings true\n"
                       "expect windows settingsPane timing\nexpect windows main false\n"),
              "");
}

TEST(Popover, DetailWaitsForTheDashboardToTakeIt) {
    EXPECT_EQ(outputOf("go usageDetail\nexpect windows pendingUsageDetail apps\n"), "");
}

TEST(Popover, QuitIsTheSameAsTheCommand) {
    const std::string before = "events on\nrun 7\n";
    EXPECT_EQ(outputOf(before + "go quit\nlaunch\nexpect engine state working\n"),
              outputOf(before + "quit\nlaunch\nexpect engine state working\n"));
    EXPECT_EQ(simulate(std::string(launched) + "go quit\nshow popover\n").status, 2);
}

} // namespace
} // namespace kestrelfen
