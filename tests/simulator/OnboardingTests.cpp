#include "MalformedLines.hpp"

namespace kestrelfen {
namespace {

const std::string note = "{\"note\":\"not available\"}\n";

/// All that is printed of a first run; every expectation must hold.
std::string outputOf(const std::string& lines) {
    const SimulatorRun run = simulate("launch\n" + lines);
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

TEST(Onboarding, IsShownKeyByKey) {
    EXPECT_EQ(outputOf("show onboarding\n"),
              R"({"show":"onboarding","visible":true,"page":"welcome","preset":"standard",)"
              R"("longBreakEvery":"4 cycles","caption":"5 min break on the fourth cycle","allowSkip":true,)"
              R"("launchAtLogin":false,"error":null})"
              "\n");
    EXPECT_EQ(outputOf("finish-onboarding\nshow onboarding\n"),
              R"({"show":"onboarding","visible":false,"page":null,"preset":null,"longBreakEvery":null,)"
              R"("caption":null,"allowSkip":null,"launchAtLogin":null,"error":null})"
              "\n");
}

TEST(Onboarding, SecondPageWritesAtOnceAndStartsTheTimer) {
    EXPECT_EQ(outputOf("press onboarding set-up\nexpect onboarding page cadence\nchoose-preset strict\n"
                       "expect onboarding preset strict\nexpect prefs values.workIntervalSeconds null\n"
                       "step longBreakEvery down\nstep longBreakEvery down\n"
                       "expect onboarding caption \"5 min break on the second cycle\"\n"
                       "choose showSkipButton false\nexpect onboarding allowSkip false\n"
                       "choose launchAtLogin true\nexpect onboarding launchAtLogin true\n"
                       "expect-event login-item enabled true\nexpect engine state idle\n"
                       "press onboarding start\nexpect engine state working\n"
                       "expect engine config.workInterval 900\nexpect engine config.breakDuration 30\n"
                       "expect engine config.longBreakEvery 2\nexpect onboarding visible false\n"
                       "expect prefs values.hasCompletedOnboarding true\n"),
              "");
}

TEST(Onboarding, DefaultsSkipTheSecondPage) {
    EXPECT_EQ(
        outputOf("pref workIntervalSeconds double 60\npress onboarding defaults\n"
                 "expect prefs values.workIntervalSeconds 1200\nexpect prefs values.breakDurationSeconds 20\n"
                 "expect prefs values.longBreakEvery null\nexpect engine state working\n"
                 "expect engine timeUntilNextBreak 1200\n"),
        "");
}

TEST(Onboarding, ControlsOfTheOtherPageAreNotAvailable) {
    EXPECT_EQ(outputOf("press onboarding back\npress onboarding start\nchoose-preset gentle\n"
                       "press onboarding set-up\npress onboarding set-up\npress onboarding defaults\n"
                       "expect engine state idle\npress onboarding start\npress onboarding start\n"
                       "choose-preset gentle\npress onboarding set-up\n"),
              note + note + note + note + note + note + note + note);
}

TEST(Onboarding, BackForgetsPresetAndMessage) {
    EXPECT_EQ(outputOf("press onboarding set-up\nchoose-preset gentle\nlogin-item failing refused\n"
                       "choose launchAtLogin true\n"
                       "expect onboarding error \"Couldn't update the login item: refused\"\n"
                       "expect pane timing notes.count 0\npress onboarding back\n"
                       "expect onboarding page welcome\nexpect onboarding error null\n"
                       "press onboarding set-up\nexpect onboarding preset standard\n"
                       "expect onboarding error null\n"),
              "");
}

TEST(Onboarding, LaunchAtLoginIsTheTimingPanesWhileTheSecondPageIsNotUp) {
    EXPECT_EQ(outputOf("login-item failing refused\nchoose launchAtLogin true\n"
                       "expect onboarding error null\nexpect pane timing notes.count 1\n"
                       "press onboarding set-up\nexpect onboarding error null\n"),
              "");
}

TEST(Onboarding, StartsOverWithTheProgramOrTheWindow) {
    const std::string second = "press onboarding set-up\nchoose-preset gentle\n";
    const std::string first = "expect onboarding page welcome\nexpect onboarding preset standard\n"
                              "expect onboarding visible true\n";
    EXPECT_EQ(outputOf(second + "close main\n" + first), "");
    EXPECT_EQ(outputOf(second + "kill\nlaunch\n" + first), "");
    EXPECT_EQ(outputOf(second + "quit\nlaunch\n" + first), "");
    EXPECT_EQ(outputOf(second + "finish-onboarding\nunpref hasCompletedOnboarding\n" + first), "");
    EXPECT_EQ(outputOf(second + "close settings\nexpect onboarding page cadence\n"), note);
}

TEST(Onboarding, CycleBelowOneIsToldAsANumber) {
    EXPECT_EQ(outputOf("pref longBreakEvery int 0\nexpect onboarding longBreakEvery \"0 cycles\"\n"
                       "expect onboarding caption \"5 min break on the 0th cycle\"\n"
                       "step longBreakEvery up\nexpect onboarding longBreakEvery \"2 cycles\"\n"),
              "");
}

TEST(Malformed, Onboarding) {
    expectMalformed("launch\n",
                    {
                        {"press onboarding", "missing the control"},
                        {"press onboarding finish", R"("finish" is no control of the onboarding)"},
                        {"press onboarding start now", R"(unexpected "now")"},
                        {"choose-preset", "missing NAME"},
                        {"choose-preset Strict", R"("Strict" is no preset)"},
                        {"choose-preset strict now", R"(unexpected "now")"},
                        {"show onboarding now", R"(unexpected "now")"},
                    });
}

} // namespace
} // namespace kestrelfen
