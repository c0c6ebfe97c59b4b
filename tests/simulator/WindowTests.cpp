#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

void expectHeld(const std::string& scenario) {
    const SimulatorRun run = simulate(scenario);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "");
}

std::string outputOf(const std::string& scenario) {
    const SimulatorRun run = simulate(scenario);
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

TEST(Windows, AreShownKeyByKey) {
    EXPECT_EQ(outputOf("launch\nshow windows\n"),
              R"({"show":"windows","main":true,"settings":false,"mainTab":"screenTime",)"
              R"("settingsPane":"timing","pendingUsageDetail":null,"policy":"regular"})"
              "\n");
}

TEST(Windows, WithoutAnOnboardingNoneIsOpenAtTheStart) {
    expectHeld("pref hasCompletedOnboarding bool true\nlaunch\nexpect windows main false\n"
               "expect windows policy accessory\n");
}

TEST(Windows, ClosingTheLastDropsTheProgramFromTheTasks) {
    EXPECT_EQ(outputOf("launch\nevents on\nclose main\nevents off\nexpect windows main false\n"),
              R"({"event":"dock","at":"2026-03-09T08:00:00.000Z","policy":"accessory"})"
              "\n");
}

TEST(Windows, OneThatIsNotOpenCannotBeClosed) {
    EXPECT_EQ(outputOf("launch\nclose settings\n"), "{\"note\":\"not available\"}\n");
    EXPECT_EQ(outputOf("launch\nclose main\nclose main\n"), "{\"note\":\"not available\"}\n");
}

TEST(Windows, ARelaunchBeginsWithoutThem) {
    expectHeld("launch\nfinish-onboarding\nkill\nlaunch\nexpect windows main false\n"
               "expect windows policy accessory\n");
}

TEST(Windows, TabAndPaneWriteTheRouterAlone) {
    expectHeld("pref hasCompletedOnboarding bool true\nlaunch\ntab breaks\npane about\n"
               "expect windows mainTab breaks\nexpect windows settingsPane about\n"
               "expect windows main false\nexpect windows settings false\ntab tasks\npane smartPause\n"
               "expect windows mainTab tasks\nexpect windows settingsPane smartPause\n");
}

TEST(Windows, NavigationEndsWithTheProgram) {
    expectHeld("pref hasCompletedOnboarding bool true\nlaunch\ntab breaks\npane about\nquit\nlaunch\n"
               "expect windows mainTab screenTime\nexpect windows settingsPane timing\n");
}

TEST(Windows, MalformedLines) {
    const auto error = [](const std::string& line) { return simulate("launch\n" + line + "\n").errors; };
    EXPECT_EQ(error("tab history"), "-:2: \"history\" is no tab\n");
    EXPECT_EQ(error("pane screenTime"), "-:2: \"screenTime\" is no pane\n");
    EXPECT_EQ(error("close popover"), "-:2: \"popover\" is not main or settings\n");
    EXPECT_EQ(error("login-item missing"), "-:2: \"missing\" is not ok or failing\n");
    EXPECT_EQ(error("login-item failing"), "-:2: missing TEXT\n");
    EXPECT_EQ(simulate("tab tasks\n").status, 2);
    EXPECT_EQ(simulate("pane about\n").status, 2);
    EXPECT_EQ(simulate("close main\n").status, 2);
    EXPECT_EQ(simulate("show windows\n").status, 2);
    EXPECT_EQ(simulate("login-item ok\nlogin-item failing \"no way\"\n").status, 0);
}

} // namespace
} // namespace kestrelfen
