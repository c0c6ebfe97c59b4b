#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string printed(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + "events on\n" + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return timerEventsOf(run.output);
}

std::string event(const std::string& kind, const std::string& time, const std::string& rest) {
    return R"({"event":")" + kind + R"(","at":"2026-03-09T)" + time + "Z\"" + rest + "}\n";
}

std::string logged(const std::string& time, const std::string& text,
                   const std::string& category = "BreakEngine") {
    return event("log", time, R"(,"level":"info","category":")" + category + R"(","text":")" + text + '"');
}

std::string windows(const std::string& time, const std::string& call, int count) {
    return event("windows", time, R"(,"call":")" + call + R"(","count":)" + std::to_string(count));
}

std::string shortBreakNotified(const std::string& time, const std::string& sound = "false") {
    return event(
        "notification", time,
        R"(,"title":"Look away — 20 seconds","body":"Focus on something about 20 feet away for 20 s.",)"
        R"("sound":)" +
            sound);
}

TEST(Events, AreOffAtFirstAndCanBeTurnedOffAgain) {
    EXPECT_EQ(simulate(inBreak).output, "");
    EXPECT_EQ(printed(launched, "events off\nrun 1300\n"), "");
}

TEST(Events, OfTheStartUp) {
    EXPECT_EQ(printed("pref hasCompletedOnboarding bool true\n", "launch\n"),
              logged("08:00:00.000", "right click enabled on the status item", "StatusItem") +
                  logged("08:00:00.000", "work 20 min → break at 08:20 (next break long: false)") +
                  event("authorization", "08:00:00.000", "") +
                  logged("08:00:00.000", "hydrated day 2026-03-09: 0 completed, 0 skipped"));
}

TEST(Events, OfAFirstStartUp) {
    EXPECT_EQ(printed("", "launch\n"),
              logged("08:00:00.000", "right click enabled on the status item", "StatusItem") +
                  event("authorization", "08:00:00.000", "") +
                  event("dock", "08:00:00.000", R"(,"policy":"regular")") +
                  logged("08:00:00.000", "hydrated day 2026-03-09: 0 completed, 0 skipped"));
}

TEST(Events, AuthorizationIsAskedOnce) {
    EXPECT_EQ(printed(launched, "quit\nlaunch\n"),
              logged("08:00:00.000", "right click enabled on the status item", "StatusItem") +
                  logged("08:00:00.000", "work 20 min → break at 08:20 (next break long: false)") +
                  logged("08:00:00.000", "hydrated day 2026-03-09: 0 completed, 0 skipped"));
}

TEST(Events, MainWindowOfEachFirstRunBringsThePlaceAmongTheTasks) {
    EXPECT_EQ(simulate("launch\nexpect-event dock policy regular\nforget-events\nquit\n"
                       "expect-event dock policy null\nlaunch\nexpect-event dock policy regular\n"
                       "kill\nforget-events\nlaunch\nexpect-event dock policy regular\n"
                       "finish-onboarding\nquit\nforget-events\nlaunch\nexpect-event dock policy null\n")
                  .errors,
              "");
}

TEST(Events, OfAMidnight) {
    EXPECT_EQ(printed("clock 2026-03-09T23:59:59Z\npref hasCompletedOnboarding bool true\nlaunch\n"
                      "pref dailySummaryEnabled bool false\n",
                      "run 1\n"),
              R"({"event":"log","at":"2026-03-10T00:00:00.000Z","level":"info","category":"BreakEngine",)"
              "\"text\":\"day rollover 2026-03-09 → 2026-03-10\"}\n"
              R"({"event":"log","at":"2026-03-10T00:00:00.000Z","level":"info","category":"BreakEngine",)"
              R"("text":"hydrated day 2026-03-10: 0 completed, 0 skipped"})"
              "\n");
}

TEST(Events, OfAWholeBreak) {
    EXPECT_EQ(
        printed(launched, "run 1220\n"),
        logged("08:19:50.000", "pre-break warning (0:10 to break)") +
            windows("08:19:50.000", "showWarning", 0) + logged("08:20:00.000", "break 20 s → ends 08:20") +
            windows("08:20:00.000", "hideWarning", 0) + windows("08:20:00.000", "buildBreakWindows", 1) +
            shortBreakNotified("08:20:00.000") + logged("08:20:20.000", "break complete (today: 1)") +
            logged("08:20:20.000", "work 20 min → break at 08:40 (next break long: false)") +
            windows("08:20:20.000", "tearDownBreakWindows", 0));
}

TEST(Events, LogComesBeforeStandardOutput) {
    EXPECT_EQ(
        printed("pref debugFastCycle bool true\nlaunch\n", "finish-onboarding\n"),
        logged("08:00:00.000", "work 10 s → break at 08:00 (next break long: false)") +
            event(
                "stdout", "08:00:00.000",
                R"-(,"text":"[Kestrelfen] 08:00:00 work 10 s → break at 08:00 (next break long: false)")-"));
}

TEST(Events, LockComesBeforeItsLine) {
    EXPECT_EQ(printed(launched, "pref lockOnBreakStart bool true\nprogram active\ndo begin-break\n"),
              logged("08:00:00.000", "break 20 s → ends 08:00") + event("lock", "08:00:00.000", "") +
                  logged("08:00:00.000", "screen locked at break start", "ScreenLock") +
                  windows("08:00:00.000", "buildBreakWindows", 1));
}

TEST(Events, LockThatFailsIsNoEvent) {
    const std::string before = std::string(launched) + "pref lockOnBreakStart bool true\nprogram active\n";
    const auto error = [](const std::string& text) {
        return event("log", "08:00:00.000",
                     R"(,"level":"error","category":"ScreenLock","text":")" + text + '"');
    };
    const std::string begun = logged("08:00:00.000", "break 20 s → ends 08:00");
    const std::string built = windows("08:00:00.000", "buildBreakWindows", 1);
    EXPECT_EQ(printed(before, "lock missing\ndo begin-break\n"),
              begun + error("CGSession is not present at the expected path") + built);
    EXPECT_EQ(printed(before, "lock failing \"no such bus\"\ndo begin-break\n"),
              begun + error("could not lock the screen: no such bus") + built);
}

TEST(Events, NotificationHasTheSoundThatIsChosen) {
    EXPECT_EQ(printed(launched, "pref soundOnBreakStart bool true\ndo begin-break\n"),
              logged("08:00:00.000", "break 20 s → ends 08:00") +
                  windows("08:00:00.000", "buildBreakWindows", 1) +
                  shortBreakNotified("08:00:00.000", "true"));
}

TEST(Events, DisplayChangeInABreakTearsDownAndBuilds) {
    EXPECT_EQ(printed(inBreak, "displays 3\ndisplays 3\n"),
              windows("08:20:00.000", "tearDownBreakWindows", 0) +
                  windows("08:20:00.000", "buildBreakWindows", 3));
}

TEST(Events, BuildingOrTearingDownNoWindowIsNone) {
    EXPECT_EQ(printed(inBreak, "displays 0\ndisplays 2\n"),
              windows("08:20:00.000", "tearDownBreakWindows", 0));
    EXPECT_EQ(printed(std::string(launched) + "displays 0\nprogram active\n", "do begin-break\nrun 20\n"),
              logged("08:00:00.000", "break 20 s → ends 08:00") +
                  logged("08:00:20.000", "break complete (today: 1)") +
                  logged("08:00:20.000", "work 20 min → break at 08:20 (next break long: false)"));
}

TEST(Events, DisplayChangeOutsideABreakIsNone) {
    EXPECT_EQ(printed(launched, "displays 2\nrun 1195\nevents off\nevents on\ndisplays 1\n"),
              logged("08:19:50.000", "pre-break warning (0:10 to break)") +
                  windows("08:19:50.000", "showWarning", 0));
}

TEST(Events, QuitTakesTheWindowsDown) {
    EXPECT_EQ(printed(inBreak, "quit\n"), windows("08:20:00.000", "tearDownBreakWindows", 0));
    EXPECT_EQ(printed(std::string(launched) + "run 1195\n", "quit\n"),
              windows("08:19:55.000", "hideWarning", 0));
}

TEST(Events, KillPrintsNothing) {
    EXPECT_EQ(printed(inBreak, "kill\n"), "");
}

TEST(Events, NoteOfAControlThatIsNotThere) {
    const std::string note = "{\"note\":\"not available\"}\n";
    EXPECT_EQ(printed(launched, "escape\npress overlay skip\npress overlay end\npress overlay snooze 1\n"
                                "press warning dismiss\npress warning start\npress warning snooze 5\n"),
              note + note + note + note + note + note + note);
    EXPECT_EQ(printed(inBreak, "press overlay skip\npress overlay end\npress warning start\nescape\n"),
              note + note + note);
}

TEST(Events, FiveDaysOfWorkAreQuick) {
    EXPECT_EQ(printed(launched, "events off\nrun 432000\n"), "");
}

} // namespace
} // namespace kestrelfen
