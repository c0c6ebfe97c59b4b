#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string shown(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

void expectHeld(const std::string& scenario) {
    const SimulatorRun run = simulate(scenario);
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "");
}

const std::string program(launched);

TEST(Senses, TrackerIsShownKeyByKey) {
    EXPECT_EQ(shown("launch\n", "show tracker\n"),
              R"({"show":"tracker","todayActiveSeconds":0.0,"frontmostAppName":null,)"
              R"("dayStart":"2026-03-09T00:00:00.000Z","pending":[],"pendingWebsites":[]})"
              "\n");
    EXPECT_EQ(
        shown("pref websiteStats.chrome bool true\nbrowser chrome permission granted\n"
              "browser chrome url http://b.org/\n"
              "app start com.google.Chrome Chrome 1 1\napp start - \"No bundle\" 2 1\nfront 1\n",
              program + "run 3\nbrowser chrome url http://a.org/\nrun 5\nfront none\nevents off\n"
                        "show tracker\n"),
        R"({"show":"tracker","todayActiveSeconds":7.0,"frontmostAppName":"Chrome",)"
        R"("dayStart":"2026-03-09T00:00:00.000Z","pending":[)"
        R"({"bundleIdentifier":"com.google.Chrome","displayName":"Chrome","displayID":1,"seconds":7.0}],)"
        R"("pendingWebsites":[{"domain":"a.org","seconds":2.0},{"domain":"b.org","seconds":5.0}]})"
        "\n");
}

TEST(Senses, PendingIsSortedByItsKeys) {
    expectHeld(
        "store broken\napp start b Z 1 1\napp start b A 2 1\napp start a Z 3\napp start - N 4\nfront 1\n" +
        program +
        "run 2\nfront 2\nrun 1\nfront 3\nrun 1\nfront 4\nrun 1\nfront none\nrun 1\napp move 1 0\n"
        "sleep 5\nfront 1\nrun 2\nexpect tracker pending.count 6\n"
        "expect tracker pending.0.displayName N\nexpect tracker pending.0.bundleIdentifier \"\"\n"
        "expect tracker pending.1.displayName Unattributed\n"
        "expect tracker pending.2.bundleIdentifier a\nexpect tracker pending.3.displayName A\n"
        "expect tracker pending.4.displayID 0\nexpect tracker pending.4.seconds 1\n"
        "expect tracker pending.5.displayID 1\nexpect tracker pending.5.displayName Z\n");
}

TEST(Senses, SmartPauseIsShownKeyByKey) {
    EXPECT_EQ(shown("launch\n", "show smart-pause\n"),
              R"({"show":"smart-pause","activeKind":null,"activeAppName":null,"audioProbeSupported":true})"
              "\n");
    EXPECT_EQ(shown("audio in us.zoom.xos\napp start us.zoom.xos \"zoom.us\" 1\n",
                    program + "tick\nshow smart-pause\naudio unsupported\nrun 5\nshow smart-pause\n"),
              R"({"show":"smart-pause","activeKind":"meetings","activeAppName":"zoom.us",)"
              R"("audioProbeSupported":true})"
              "\n"
              R"({"show":"smart-pause","activeKind":null,"activeAppName":null,"audioProbeSupported":false})"
              "\n");
}

TEST(Senses, AudioSetsAreReplacedOneByOneAndKeptWhileUnsupported) {
    expectHeld(
        "audio in us.zoom.xos\naudio out org.videolan.vlc\naudio in\n" + program +
        "tick\nexpect smart-pause activeKind video\nexpect smart-pause activeAppName org.videolan.vlc\n");
    expectHeld("audio in us.zoom.xos\naudio unsupported\n" + program +
               "tick\nexpect smart-pause activeKind null\naudio out\nrun 5\n"
               "expect smart-pause activeKind meetings\nexpect smart-pause audioProbeSupported true\n");
}

TEST(Senses, AudioIsSupportedWithNoProcessAtAll) {
    expectHeld("audio in\naudio out\n" + program + "tick\nexpect smart-pause audioProbeSupported true\n");
}

TEST(Senses, FirstListedApplicationThatRecordsIsNamed) {
    expectHeld("audio in x com.hnc.Discord us.zoom.xos\n" + program +
               "tick\nexpect smart-pause activeAppName com.hnc.Discord\n");
}

TEST(Senses, ApplicationThatStopsIsNoLongerInFront) {
    expectHeld("app start a A 1 1\nfront 1\n" + program +
               "tick\nexpect tracker frontmostAppName A\napp stop 1\ntick\n"
               "expect tracker frontmostAppName null\napp start a A 1 1\ntick\n"
               "expect tracker frontmostAppName null\n");
}

TEST(Senses, HyphenStandsForNoNameAndNoIdentifier) {
    expectHeld("app start - A 1 1\nfront 1\n" + program +
               "run 2\nexpect tracker pending.0.bundleIdentifier \"\"\n"
               "expect tracker pending.0.displayName A\nexpect tracker pending.0.displayID 1\n");
    expectHeld("app start a - 1 1\nfront 1\n" + program +
               "run 2\nexpect tracker frontmostAppName null\nexpect tracker pending.0.bundleIdentifier a\n"
               "expect tracker pending.0.displayName Unattributed\n");
}

TEST(Senses, WindowOnADisplayThatIsGoneCountsAsNone) {
    expectHeld("displays 2\napp start a A 1 2\nfront 1\n" + program +
               "run 3\ndisplays 1\nrun 10\ndisplays 2\nrun 10\nquit\nlaunch\n"
               "expect apps 5 rows.0.displayID 2\nexpect apps 5 rows.1.displayID 0\n"
               "expect app-totals 2026-03-09 rows.0.displayCount 2\nexpect app-totals 2026-03-09 "
               "rows.0.activeSeconds 22\n");
}

TEST(Senses, DisplayAsleepStopsTheSeconds) {
    expectHeld(program + "run 11\nexpect tracker todayActiveSeconds 10\ndisplay asleep\nrun 20\n"
                         "expect tracker todayActiveSeconds 10\nexpect day activeSeconds 10\ndisplay awake\n"
                         "run 11\nexpect tracker todayActiveSeconds 20\n");
}

TEST(Senses, BrowserIsAskedOnlyWhereItIsAllowed) {
    const std::string used = "pref websiteStats.safari bool true\nbrowser safari url https://a.org\n"
                             "app start com.apple.Safari Safari 1 1\nfront 1\n";
    for (const std::string permission : {"granted", "notDetermined"}) {
        expectHeld(
            used + "browser safari permission " + permission + "\n" + program +
            "run 6\nexpect tracker pendingWebsites.0.domain a.org\nexpect-event script browser safari\n");
    }
    for (const std::string permission : {"denied", "notRunning", "notInstalled"}) {
        expectHeld(used + "browser safari permission " + permission + "\n" + program +
                   "run 6\nexpect tracker pendingWebsites.count 0\nexpect-event script browser null\n"
                   "expect tracker pending.0.seconds 5\n");
    }
    expectHeld(used + program + "run 6\nexpect-event script browser null\n");
    expectHeld(used + "browser safari permission granted\nunpref websiteStats.safari\n" + program +
               "run 6\nexpect-event script browser null\n");
}

TEST(Senses, BrowserWithoutAWindowOrWithAnErrorGivesNoDomain) {
    const std::string used = "pref websiteStats.safari bool true\nbrowser safari permission granted\n"
                             "app start com.apple.Safari Safari 1 1\nfront 1\n";
    expectHeld(used + program +
               "run 6\nexpect-event script browser safari\nexpect tracker pendingWebsites.count 0\n");
    expectHeld(used + "browser safari url error\n" + program +
               "run 6\nexpect-event log text \"Safari script failed: failed\"\nexpect-event log level debug\n"
               "expect-event log category BrowserScripting\nexpect tracker pendingWebsites.count 0\n");
    expectHeld(used + "browser safari url file:///etc/hosts\n" + program +
               "run 6\nexpect tracker pendingWebsites.count 0\n");
}

} // namespace
} // namespace kestrelfen
