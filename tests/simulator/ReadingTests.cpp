#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string shown(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

TEST(Reading, EngineBeforeTheStart) {
    EXPECT_EQ(
        shown("", "launch\nsleep 5\nshow engine"),
        R"({"show":"engine","now":"2026-03-09T08:00:00.000Z","state":"idle","endsAt":null,"reason":null,)"
        R"("nextBreakAt":null,"breaksCompletedToday":0,"breaksSkippedToday":0,"currentPhaseTotal":0.0,)"
        R"("currentBreakIsLong":false,"pausedUntil":null,"snoozesOnCurrentBreak":0,"activeTaskTitle":null,)"
        R"("timeUntilNextBreak":0.0,"breakRemaining":0.0,"phaseProgress":0.0,"isNextBreakLong":false,)"
        R"("cyclePosition":1,"menuBarText":"--:--","canPostpone":false,"canSnooze":false,)"
        R"("canSkipCurrentBreak":false,"canSkipNextBreak":false,"canEndBreakEarly":false,)"
        R"("config":{"workInterval":1200.0,"breakDuration":20.0,"longBreakDuration":300.0,)"
        R"("longBreakEvery":4,"preBreakWarningLead":10.0,"idleThreshold":60.0},)"
        R"("dayStart":"2026-03-09T00:00:00.000Z"})"
        "\n");
}

TEST(Reading, EngineInATimedPause) {
    EXPECT_EQ(
        shown(launched, "run 300\ndo pause-for 900\nrun 1\nshow engine"),
        R"({"show":"engine","now":"2026-03-09T08:05:01.000Z","state":"paused","endsAt":null,"reason":"manual",)"
        R"("nextBreakAt":"2026-03-09T08:20:00.000Z","breaksCompletedToday":0,"breaksSkippedToday":0,)"
        R"("currentPhaseTotal":1200.0,"currentBreakIsLong":false,"pausedUntil":"2026-03-09T08:20:00.000Z",)"
        R"("snoozesOnCurrentBreak":0,"activeTaskTitle":null,"timeUntilNextBreak":900.0,"breakRemaining":0.0,)"
        R"("phaseProgress":0.25,"isNextBreakLong":false,"cyclePosition":1,"menuBarText":"15:00",)"
        R"("canPostpone":false,"canSnooze":false,"canSkipCurrentBreak":false,"canSkipNextBreak":false,)"
        R"("canEndBreakEarly":false,"config":{"workInterval":1200.0,"breakDuration":20.0,)"
        R"("longBreakDuration":300.0,"longBreakEvery":4,"preBreakWarningLead":10.0,"idleThreshold":60.0},)"
        R"("dayStart":"2026-03-09T00:00:00.000Z"})"
        "\n");
}

TEST(Reading, ViewsThatAreNotUpHaveEveryKey) {
    EXPECT_EQ(
        shown(launched, "show overlay\nshow warning"),
        R"({"show":"overlay","visible":false,"count":0,"isLong":null,"eyebrow":null,"title":null,"body":null,)"
        R"("ringRemaining":null,"ringLabel":null,"controls":null,"coverageNote":null,"cadenceDots":null,)"
        R"("cadenceText":null,"cadenceSkip":null})"
        "\n"
        R"({"show":"warning","visible":false,"title":null,"caption":null,"counter":null,"fraction":null,)"
        R"("controls":null,"hint":null})"
        "\n");
}

TEST(Reading, OverlayOfAShortBreak) {
    EXPECT_EQ(
        shown(inBreak, "run 3\nshow overlay"),
        R"({"show":"overlay","visible":true,"count":1,"isLong":false,"eyebrow":null,"title":"Look 20 feet away",)"
        R"("body":"Blink slowly. Roll your shoulders. Nothing is being counted as screen time.",)"
        R"("ringRemaining":0.85,"ringLabel":"0:17","controls":["+1 min","+3 min","+5 min","Skip in 2"],)"
        R"("coverageNote":"covering 1 display · esc does nothing","cadenceDots":null,"cadenceText":null,)"
        R"("cadenceSkip":null})"
        "\n");
}

TEST(Reading, OverlayOfALongBreak) {
    EXPECT_EQ(
        shown("pref longBreakEvery int 2\ndisplays 2\n", "pref hasCompletedOnboarding bool true\nlaunch\n"
                                                         "run 1220\nrun 1200\nrun 225\nshow overlay"),
        R"({"show":"overlay","visible":true,"count":2,"isLong":true,"eyebrow":"Long break · every 4th cycle",)"
        R"("title":"Stand up and walk",)"
        R"("body":"Five minutes. Get water, look out a window, let your eyes refocus.",)"
        R"("ringRemaining":0.25,"ringLabel":"1:15",)"
        R"("controls":["+1 min","+3 min","+5 min","End Break","Skip This Break"],"coverageNote":null,)"
        R"("cadenceDots":2,"cadenceText":"2 work intervals since the last long break","cadenceSkip":true})"
        "\n");
}

TEST(Reading, Warning) {
    EXPECT_EQ(shown(launched, "run 1195\nshow warning"),
              R"({"show":"warning","visible":true,"title":"Break in 5 seconds",)"
              R"("caption":"Find a stopping point. Dismissing keeps the break.","counter":5,"fraction":0.5,)"
              R"("controls":["Dismiss","+1","+3","+5","Start Now"],"hint":"Snooze: +1, +3 or +5 minutes"})"
              "\n");
}

TEST(Reading, StatusItem) {
    EXPECT_EQ(shown(launched, "run 59\nshow status-item"),
              "{\"show\":\"status-item\",\"symbol\":\"eye\",\"text\":\"19:01\"}\n");
}

TEST(Reading, PreferencesAreSortedAndTyped) {
    EXPECT_EQ(shown("", "pref z bool false\npref b int -3\npref a double 0.1\npref Z string \"x\\ny\"\n"
                        "pref d date 2026-03-09T08:00:00.25Z\npref l strings b a\npref e strings\n"
                        "pref m dict k v \"\" w\npref n dict\npref ä string →\nshow prefs"),
              R"({"show":"prefs","values":{"Z":"x\ny","a":0.1,"b":-3,"d":"2026-03-09T08:00:00.250Z","e":[],)"
              R"("l":["b","a"],"m":{"":"w","k":"v"},"n":{},"z":false,"ä":"→"}})"
              "\n");
}

TEST(Reading, PreferenceIsReplacedAndRemoved) {
    EXPECT_EQ(shown("", "pref a int 1\npref a string 1\npref b int 2\nunpref b\nunpref none\nshow prefs"),
              "{\"show\":\"prefs\",\"values\":{\"a\":\"1\"}}\n");
}

TEST(Reading, NumbersReadBackToTheSameDouble) {
    EXPECT_EQ(shown("", "pref a double 0.30000000000000004\npref b double 1.7976931348623157e308\n"
                        "pref c double 5e-324\npref d int 9223372036854775807\nshow prefs"),
              R"({"show":"prefs","values":{"a":0.30000000000000004,"b":1.7976931348623157e+308,"c":5e-324,)"
              R"("d":9223372036854775807}})"
              "\n");
}

TEST(Reading, IdlenessThatIsOffIsTheLargestDouble) {
    EXPECT_EQ(simulate("pref idleMode string off\nlaunch\n"
                       "expect engine config.idleThreshold 1.7976931348623157e308\n")
                  .status,
              0);
}

} // namespace
} // namespace kestrelfen
