#include "MalformedLines.hpp"

namespace kestrelfen {
namespace {

const std::string note = "{\"note\":\"not available\"}\n";

/// All that is printed; every expectation must hold.
std::string outputOf(const std::string& lines) {
    const SimulatorRun run = simulate(std::string(launched) + lines);
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

TEST(Settings, TimingIsShownKeyByKey) {
    EXPECT_EQ(
        outputOf("login-item failing \"no bus\"\nchoose launchAtLogin true\n"
                 "pref preBreakWarningLeadSeconds int 1200\nshow pane timing\n"),
        R"({"show":"pane","title":"Timing","sentence":"Validated on commit, including the cross-field rules )"
        R"(a single stepper can't express.","rows":[)"
        R"({"title":"Work interval","caption":null,"value":"20 min","invalid":false,"enabled":true},)"
        R"({"title":"Short break","caption":null,"value":"20 s","invalid":false,"enabled":true},)"
        R"({"title":"Long break","caption":"must exceed the short break","value":"5 min","invalid":false,)"
        R"("enabled":true},)"
        R"({"title":"Long break every","caption":null,"value":"4 cycles","invalid":false,"enabled":true},)"
        R"({"title":"Warning HUD lead time","caption":"Must be shorter than the work interval",)"
        R"("value":"20 min","invalid":true,"enabled":true},)"
        R"({"title":"Launch at login","caption":"SMAppService · also in the menu bar","value":false,)"
        R"("invalid":false,"enabled":true}],"notes":["Couldn't update the login item: no bus"]})"
        "\n");
}

TEST(Settings, StepWritesAndReconciles) {
    EXPECT_EQ(outputOf("pref preBreakWarningLeadSeconds double 120\npref workIntervalSeconds double 120\n"
                       "step workIntervalSeconds down\nexpect prefs values.workIntervalSeconds 60\n"
                       "expect prefs values.preBreakWarningLeadSeconds 59\n"
                       "step longBreakEvery up\nexpect prefs values.longBreakEvery 5\n"
                       "step breakDurationSeconds down\nstep longBreakDurationSeconds up\n"
                       "step preBreakWarningLeadSeconds down\n"
                       "expect prefs values.breakDurationSeconds 15\n"
                       "expect prefs values.longBreakDurationSeconds 360\n"
                       "expect prefs values.preBreakWarningLeadSeconds 54\n"),
              "");
}

TEST(Settings, StepAtTheEndOrNotShownIsNotAvailable) {
    EXPECT_EQ(outputOf("step workIntervalSeconds down\npref workIntervalSeconds double 60\n"
                       "step workIntervalSeconds down\nexpect prefs values.workIntervalSeconds 60\n"
                       "step idleThresholdSeconds up\nexpect prefs values.idleThresholdSeconds null\n"
                       "choose idleMode custom\nexpect prefs values.idleThresholdSeconds 30\n"
                       "step idleThresholdSeconds up\nexpect prefs values.idleThresholdSeconds 45\n"
                       "choose idleMode off\nstep idleThresholdSeconds up\n"),
              note + note + note);
}

TEST(Settings, ValuesFromOutsideStayUntilAStep) {
    EXPECT_EQ(outputOf("pref longBreakDurationSeconds double 10\nexpect pane timing rows.2.invalid true\n"
                       "expect prefs values.longBreakDurationSeconds 10\nstep longBreakEvery up\n"
                       "expect prefs values.longBreakDurationSeconds 10\nstep workIntervalSeconds up\n"
                       "expect prefs values.longBreakDurationSeconds 80\n"
                       "expect pane timing rows.2.invalid false\n"),
              "");
}

struct Choice {
    const char* key;
    const char* words;
};

/// Everything that there is to choose, and all that is offered.
constexpr Choice choices[] = {
    {"enforcementLevel", "casual balanced hardcore"},
    {"snoozeDurationSeconds", "60 180 300"},
    {"snoozesPerDay", "0 1 2 3 5 -1"},
    {"snoozesPerBreak", "0 1 2 3 5 -1"},
    {"advanceSkipsPerDay", "0 1 2 3 5 -1"},
    {"showSkipButton", "true false"},
    {"allowEndBreakEarly", "true false"},
    {"doubleEscapeAction", "nothing snooze skip"},
    {"lockOnBreakStart", "true false"},
    {"smartPauseMeetings", "true false"},
    {"smartPauseVideo", "true false"},
    {"smartPauseScreenSharing", "true false"},
    {"smartPauseFocusApps", "true false"},
    {"idleMode", "off automatic custom"},
    {"resumeAutomatically", "true false"},
    {"pauseOnScreenLock", "true false"},
    {"pauseOnDisplaySleep", "true false"},
    {"pauseOnSystemSleep", "true false"},
    {"warningHUDEnabled", "true false"},
    {"dailySummaryEnabled", "true false"},
    {"soundOnBreakStart", "true false"},
    {"historyRetentionDays", "30 90 365 0"},
    {"appearance", "system light dark"},
};

TEST(Settings, ChooseWritesWhatIsOffered) {
    std::string lines;
    for (const Choice& choice : choices) {
        const std::string words = std::string(choice.words) + " ";
        for (std::size_t begin = 0; begin < words.size(); begin = words.find(' ', begin) + 1) {
            const std::string word = words.substr(begin, words.find(' ', begin) - begin);
            const std::string line = std::string(choice.key) + " " + word + "\n";
            lines += "choose " + line + "expect prefs values." + line;
        }
    }
    EXPECT_EQ(outputOf(lines), "");
}

TEST(Settings, ChooseOfTheValueInForceIsWrittenAgain) {
    EXPECT_EQ(outputOf("choose enforcementLevel balanced\nexpect prefs values.enforcementLevel balanced\n"
                       "choose snoozeDurationSeconds 300.0\nexpect prefs values.snoozeDurationSeconds 300\n"),
              "");
}

TEST(Settings, LevelReachesTheNextBreak) {
    EXPECT_EQ(outputOf("choose enforcementLevel hardcore\nrun 1210\nexpect engine canSkipCurrentBreak false\n"
                       "choose enforcementLevel casual\nexpect engine canSkipCurrentBreak true\n"
                       "choose showSkipButton false\nexpect engine canSkipCurrentBreak false\n"),
              "");
}

TEST(Settings, LaunchAtLoginTellsTheSystemOncePerChange) {
    EXPECT_EQ(outputOf("choose launchAtLogin false\nexpect-event login-item enabled null\n"
                       "choose launchAtLogin true\nexpect-event login-item enabled true\n"
                       "expect pane timing rows.5.value true\nforget-events\nchoose launchAtLogin true\n"
                       "expect-event login-item enabled null\n"
                       "login-item failing refused\nchoose launchAtLogin true\n"
                       "expect pane timing notes.count 0\nchoose launchAtLogin false\n"
                       "expect pane timing notes.0 \"Couldn't update the login item: refused\"\n"
                       "expect pane timing rows.5.value true\nexpect-event login-item enabled null\n"
                       "login-item ok\nchoose launchAtLogin true\nexpect pane timing notes.count 1\n"
                       "choose launchAtLogin false\nexpect pane timing notes.count 0\n"
                       "expect-event login-item enabled false\nexpect prefs values.launchAtLogin null\n"),
              "");
}

TEST(Settings, LaunchMessageEndsWithTheProgramAndTheItemDoesNot) {
    EXPECT_EQ(outputOf("choose launchAtLogin true\nlogin-item failing x\nchoose launchAtLogin false\n"
                       "expect pane timing notes.count 1\nkill\nlaunch\nexpect pane timing notes.count 0\n"
                       "expect pane timing rows.5.value true\n"),
              "");
}

TEST(Settings, AppsAreAddedRemovedAndRestored) {
    EXPECT_EQ(
        outputOf(
            "app start org.b \"B app\" 1\napp start org.a - 2\napps focusApps add org.b\n"
            "show app-list focusApps\napps focusApps add org.b\napps focusApps add org.c\n"
            "apps focusApps remove org.c\napps focusApps add org.a\n"
            "expect prefs values.focusAppBundleIDs.0 org.a\nexpect prefs values.focusAppBundleIDs.1 org.b\n"
            "apps focusApps remove org.b\n"
            "expect prefs values.focusAppBundleIDs.count 1\n"
            "apps focusApps restore\nexpect prefs values.focusAppBundleIDs []\n"),
        R"({"show":"app-list","title":"Deep Focus Apps","sentence":"Apps that mean you're in deep focus",)"
        R"("ids":[{"bundleID":"org.b","name":"B app"}],"running":[{"bundleID":"org.a","name":"org.a"}]})"
        "\n" +
            note + note + note);
}

TEST(Settings, KestrelfenItselfIsNoChoice) {
    EXPECT_EQ(outputOf("app start app.kestrelfen.mac Kestrelfen 1\nexpect app-list video running.count 0\n"
                       "apps video add app.kestrelfen.mac\n"),
              note);
}

TEST(Settings, WebsiteAsksForThePermissionThatIsSet) {
    EXPECT_EQ(
        outputOf("website safari true\nexpect prefs values.websiteStats.safari null\n"
                 "browser safari permission denied\nbrowser chrome permission notRunning\n"
                 "browser comet permission granted\nwebsite safari true\nwebsite chrome true\n"
                 "expect prefs values.websiteStats.safari true\n"
                 "expect pane websiteStats rows.count 3\nexpect pane websiteStats rows.0.value true\n"
                 "expect pane websiteStats rows.1.caption \"Closed — it will be opened so macOS can ask\"\n"
                 "expect pane websiteStats rows.2.value false\nexpect pane websiteStats rows.2.enabled true\n"
                 "expect pane websiteStats notes.count 2\nwebsite safari false\n"
                 "expect prefs values.websiteStats.safari false\nexpect-event script browser null\n"),
        note);
}

TEST(Settings, SmartPauseTellsWhatIsDetected) {
    EXPECT_EQ(outputOf("app start us.zoom.xos Zoom 1\naudio in us.zoom.xos\nrun 1\n"
                       "expect pane smartPause notes.0 \"Meetings or Calls detected — Zoom\"\n"
                       "audio unsupported\nrun 60\nexpect pane smartPause notes.count 3\n"
                       "expect pane smartPause notes.0 \"Nothing detected right now\"\n"),
              "");
}

TEST(Settings, NotificationsKeepTheirMessages) {
    EXPECT_EQ(outputOf("export /nowhere/a.csv\ndelete-all-history\nexpect pane notifications notes.count 4\n"
                       "expect pane notifications notes.3 \"Deleted 0 days of history.\"\n"
                       "kill\nlaunch\nexpect pane notifications notes.count 2\n"
                       "expect pane notifications notes.0 \"Break in 10 seconds — look 20 feet away.\"\n"),
              "");
}

TEST(Settings, EveryPaneHasItsTitle) {
    EXPECT_EQ(
        outputOf("expect pane timing rows.count 6\nexpect pane enforcement rows.count 11\n"
                 "expect pane smartPause rows.count 4\nexpect pane pausing rows.count 5\n"
                 "expect pane websiteStats rows.count 0\nexpect pane notifications rows.count 4\n"
                 "expect pane appearance rows.count 3\nexpect pane about rows.count 0\n"
                 "expect pane about title Kestrelfen\nexpect pane notifications title \"Notifications & "
                 "Data\"\nexpect pane appearance rows.0.value true\n"
                 "expect pane enforcement rows.3.value \"5 min\"\npref snoozesPerDay int 7\n"
                 "expect pane enforcement rows.4.value null\n"),
        "");
}

TEST(Settings, ShowingAPaneMovesNothing) {
    EXPECT_EQ(outputOf("pane enforcement\nshow prefs\nexpect windows settingsPane enforcement\n"),
              outputOf("show prefs\n"));
    EXPECT_EQ(outputOf("expect pane about rows.count 0\nexpect windows settingsPane timing\n"), "");
}

TEST(Malformed, Settings) {
    expectMalformed("launch\n",
                    {
                        {"step", "missing KEY"},
                        {"step workIntervalSeconds", "missing up or down"},
                        {"step workIntervalSeconds left", R"("left" is not up or down)"},
                        {"step workIntervalSeconds up 2", R"(unexpected "2")"},
                        {"step showSkipButton up", R"("showSkipButton" has no stepper)"},
                        {"choose", "missing KEY"},
                        {"choose showSkipButton", "missing VALUE"},
                        {"choose showSkipButton 1", R"("1" is not offered)"},
                        {"choose showSkipButton true now", R"(unexpected "now")"},
                        {"choose workIntervalSeconds 1200", R"("workIntervalSeconds" has nothing to choose)"},
                        {"choose pauseOnIdle true", R"("pauseOnIdle" has nothing to choose)"},
                        {"choose snoozesPerDay 4", R"("4" is not offered)"},
                        {"choose snoozesPerDay None", R"("None" is not offered)"},
                        {"choose snoozeDurationSeconds 120", R"("120" is not offered)"},
                        {"choose historyRetentionDays 31", R"("31" is not offered)"},
                        {"choose appearance blue", R"("blue" is not offered)"},
                        {"choose launchAtLogin yes", R"("yes" is not true or false)"},
                        {"apps", "missing KIND"},
                        {"apps calls restore", R"("calls" is no kind of smart pause)"},
                        {"apps video", "missing add, remove or restore"},
                        {"apps video empty", R"("empty" is not add, remove or restore)"},
                        {"apps video add", "missing BUNDLE"},
                        {"apps video restore a", R"(unexpected "a")"},
                        {"website", "missing KIND"},
                        {"website firefox true", R"("firefox" is no browser)"},
                        {"website safari", "missing BOOL"},
                        {"website safari on", R"("on" is not true or false)"},
                        {"website safari true now", R"(unexpected "now")"},
                        {"show pane", "missing NAME"},
                        {"show pane sound", R"("sound" is no pane)"},
                        {"show pane timing now", R"(unexpected "now")"},
                        {"show app-list", "missing KIND"},
                        {"show app-list calls", R"("calls" is no kind of smart pause)"},
                    });
}

TEST(Malformed, SettingsWithoutAProgram) {
    expectMalformed("launch\nkill\n", {
                                          {"step workIntervalSeconds up", "no program is launched"},
                                          {"choose showSkipButton true", "no program is launched"},
                                          {"choose launchAtLogin true", "no program is launched"},
                                          {"apps video restore", "no program is launched"},
                                          {"website safari true", "no program is launched"},
                                          {"show pane about", "no program is launched"},
                                          {"show app-list video", "no program is launched"},
                                          {"show onboarding", "no program is launched"},
                                          {"press onboarding start", "no program is launched"},
                                          {"choose-preset strict", "no program is launched"},
                                      });
}

} // namespace
} // namespace kestrelfen
