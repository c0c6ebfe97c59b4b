#include "MalformedLines.hpp"

namespace kestrelfen {
namespace {

constexpr const char* unavailable = "{\"note\":\"not available\"}\n";

std::string shown(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

void expectAllHold(std::string_view before, std::string_view lines) {
    EXPECT_EQ(shown(before, lines), "");
}

TEST(MainWindow, ScoreOfNothing) {
    const std::string zeros = R"("breaksCompleted":0,"breaksSkipped":0,"activeSeconds":0.0,)";
    const auto bar = [&](const std::string& day, const char* isToday) {
        return R"({"startOfDay":"2026-03-)" + day + R"(T00:00:00.000Z",)" + zeros + R"("isToday":)" +
               isToday + R"(,"keptLabel":"—","tint":"faint"})";
    };
    EXPECT_EQ(shown(launched, "show score"),
              R"({"show":"score","score":0,"label":"No data yet","keptRatio":0.0,"daysWithinTarget":0,)"
              R"("daysCounted":0,"longestStretch":0.0,"stretchTarget":3600.0,"streak":0,)"
              R"("suggestion":"Nothing recorded yet. The score fills in as the week goes on.",)"
              R"("chartSubtitle":"Nothing recorded this week yet","bars":[)" +
                  bar("03", "false") + "," + bar("04", "false") + "," + bar("05", "false") + "," +
                  bar("06", "false") + "," + bar("07", "false") + "," + bar("08", "false") + "," +
                  bar("09", "true") + "]}\n");
}

TEST(MainWindow, DashboardAtWork) {
    EXPECT_EQ(shown(launched, "run 300\nshow dashboard"),
              R"({"show":"dashboard","meta":"next break 15:00","banner":null,"ringRemaining":0.75,)"
              R"("ringLabel":"15:00","ringCaption":"to next break","headline":"Short break at 08:20",)"
              R"("subhead":"20 seconds, look 20 feet away. Held back during calls, video and idle time.",)"
              R"("buttons":[{"label":"Break Now","enabled":true},{"label":"Postpone 5m","enabled":true},)"
              R"({"label":"Pause 1h","enabled":true}],"stats":[{"value":"5 m","label":"current stretch"},)"
              R"({"value":"0 s","label":"longest today"},{"value":"4 m","label":"screen time"},)"
              R"({"value":"0 s","label":"paused away"},{"value":"0 days","label":"streak"}],)"
              R"("usageSource":"apps","usageRows":[],"emptyUsageNote":"Nothing attributed yet."})"
              "\n");
}

TEST(MainWindow, DashboardInTheZonesTime) {
    expectAllHold("zone Europe/Berlin\n", "pref hasCompletedOnboarding bool true\nlaunch\n"
                                          "expect dashboard headline \"Short break at 09:20\"\n"
                                          "do pause-for 60\nexpect dashboard subhead \"Resumes at 09:01\"\n");
}

TEST(MainWindow, DashboardWithoutAStore) {
    expectAllHold("pref hasCompletedOnboarding bool true\nstore broken\nlaunch\n",
                  "expect dashboard banner \"History is unavailable — the timer is still running, but "
                  "nothing is being saved.\"\n"
                  "expect breaks today summary \"0 rows · retention 1 year\"\n"
                  "expect breaks today empty \"Nothing recorded in this range.\"\n"
                  "expect usage apps today placeholder \"Nothing recorded in this range.\"\n"
                  "expect score label \"No data yet\"\n");
}

TEST(MainWindow, DashboardsButtons) {
    expectAllHold(launched, "press dashboard 2\nexpect engine endsAt 2026-03-09T08:05:00.000Z\n"
                            "press dashboard 3\nexpect engine pausedUntil 2026-03-09T09:00:00.000Z\n"
                            "expect dashboard buttons.2.label Resume\n"
                            "press dashboard 3\nexpect engine state working\n"
                            "press dashboard 1\nexpect engine state onBreak\n"
                            "run 5\npress dashboard 1\nexpect engine breaksSkippedToday 1\n");
}

TEST(MainWindow, PostponeThatIsDisabledIsNotAvailable) {
    EXPECT_EQ(shown(inBreak, "expect dashboard buttons.1.enabled false\npress dashboard 2\n"
                             "expect engine endsAt 2026-03-09T08:20:20.000Z\n"),
              unavailable);
}

TEST(MainWindow, EndBreakThatIsRefusedIsAvailable) {
    expectAllHold(inBreak, "pref enforcementLevel string hardcore\nrun 10\npress dashboard 1\n"
                           "expect engine state onBreak\n");
}

TEST(MainWindow, UsageSourceIsKeptUntilTheProgramEnds) {
    expectAllHold(launched, "choose usageSource websites\nexpect dashboard usageSource websites\n"
                            "expect dashboard emptyUsageNote \"No website time yet. Turn a browser on in "
                            "Settings › Website Stats.\"\n"
                            "quit\nlaunch\nexpect dashboard usageSource apps\n"
                            "choose usageSource websites\nkill\nlaunch\nexpect dashboard usageSource apps\n");
}

TEST(MainWindow, HoveredDayIsKeptAsItsFirstInstant) {
    EXPECT_EQ(shown(launched, "hover 2026-03-08\nexpect score chartSubtitle \"Sun 8 Mar · 0 s · 0 breaks\"\n"
                              "expect score chartSubtitle \"Sun 8 Mar · 0 s · 0 breaks\"\n"
                              "hover 2026-03-02\nhover 2026-03-10\n"
                              "expect score chartSubtitle \"Sun 8 Mar · 0 s · 0 breaks\"\n"
                              "zone Europe/Berlin\ntick\n"
                              "expect score chartSubtitle \"Nothing recorded this week yet\"\n"
                              "zone UTC\ntick\n"
                              "expect score chartSubtitle \"Sun 8 Mar · 0 s · 0 breaks\"\n"
                              "hover none\n"
                              "expect score chartSubtitle \"Nothing recorded this week yet\"\n"
                              "hover 2026-03-09\nkill\nlaunch\n"
                              "expect score chartSubtitle \"Nothing recorded this week yet\"\n"),
              std::string(unavailable) + unavailable);
}

TEST(MainWindow, DateThatTheZoneLeftOutHasNoBar) {
    EXPECT_EQ(shown("zone Pacific/Apia\nclock 2011-12-31T20:00:00Z\n"
                    "pref hasCompletedOnboarding bool true\nlaunch\n",
                    "expect score bars.count 6\nhover 2011-12-29\nhover 2011-12-30\n"
                    "expect score chartSubtitle \"Thu 29 Dec · 0 s · 0 breaks\"\n"),
              unavailable);
}

TEST(MainWindow, PendingDetailIsTakenByTheDashboardOnce) {
    expectAllHold(launched, "choose usageSource websites\ngo usageDetail\n"
                            "expect windows pendingUsageDetail apps\n"
                            "expect breaks today summary \"0 rows · retention 1 year\"\n"
                            "expect windows pendingUsageDetail apps\n"
                            "expect dashboard usageSource apps\n"
                            "expect windows pendingUsageDetail null\n"
                            "choose usageSource websites\nexpect dashboard usageSource websites\n");
}

TEST(MainWindow, Breaks) {
    EXPECT_EQ(shown(launched,
                    "show breaks today\ndo begin-break\nrun 5\npress overlay skip\ndo pause\nrun 61\n"
                    "do resume\npref historyRetentionDays int 0\nshow breaks week\n"),
              R"({"show":"breaks","summary":"0 rows · retention 1 year","rows":[],)"
              R"("empty":"Nothing recorded in this range."})"
              "\n"
              R"({"show":"breaks","summary":"2 rows · retention Forever","rows":[)"
              R"(["08:00","Paused · manual","1:01","not counted as screen time","—"],)"
              R"(["08:00","Skipped","—","—","1 screen"]],"empty":null})"
              "\n");
}

/// Two minutes in one application, one in another, one on a website.
constexpr std::string_view used = "pref hasCompletedOnboarding bool true\n"
                                  "pref websiteStats.safari bool true\n"
                                  "browser safari permission granted\n"
                                  "browser safari url https://example.org/a\n"
                                  "app start com.apple.Safari Safari 10 1\n"
                                  "app start org.editor Editor 11 1\n"
                                  "front 10\nlaunch\nrun 121\nfront 11\nrun 60\n"
                                  "front none\nrun 1\n";

TEST(MainWindow, UsageOfApps) {
    EXPECT_EQ(
        shown(used, "show usage apps today\nshow usage apps week work\n"),
        R"({"show":"usage","summaryLine":"3 m across 2 apps","chips":[{"category":"all","count":2},)"
        R"({"category":"work","count":0},{"category":"communication","count":0},)"
        R"({"category":"browsing","count":1},{"category":"media","count":0},)"
        R"({"category":"utilities","count":0},{"category":"other","count":1}],"rows":[)"
        R"({"name":"Safari","detail":null,"time":"2 m","share":"67%","fraction":1.0,"category":"browsing"},)"
        R"({"name":"Editor","detail":null,"time":"1 m","share":"33%","fraction":0.5,"category":"other"}],)"
        R"("placeholder":null})"
        "\n"
        R"({"show":"usage","summaryLine":"0 s across 0 apps","chips":[{"category":"all","count":2},)"
        R"({"category":"work","count":0},{"category":"communication","count":0},)"
        R"({"category":"browsing","count":1},{"category":"media","count":0},)"
        R"({"category":"utilities","count":0},{"category":"other","count":1}],"rows":[],)"
        R"("placeholder":"No apps in this category."})"
        "\n");
}

TEST(MainWindow, UsageOfWebsites) {
    EXPECT_EQ(
        shown(used, "show usage websites today\nexpect usage websites week work rows.0.detail \"1 day\"\n"),
        R"({"show":"usage","summaryLine":"2 m across 1 site","chips":[],"rows":[)"
        R"({"name":"example.org","detail":null,"time":"2 m","share":"100%","fraction":1.0,)"
        R"("category":null}],"placeholder":null})"
        "\n");
}

TEST(MainWindow, DashboardsUsageRows) {
    expectAllHold(used,
                  "expect dashboard usageRows.0.name Safari\nexpect dashboard usageRows.1.fraction 0.5\n"
                  "expect dashboard usageRows.1.seconds 60\nexpect dashboard emptyUsageNote null\n"
                  "choose usageSource websites\nexpect dashboard usageRows.0.name example.org\n");
}

TEST(MainWindow, CategoryIsChosenAndReset) {
    EXPECT_EQ(shown(used, "category org.editor work\nexpect usage apps today work rows.0.name Editor\n"
                          "expect usage apps today rows.1.detail \"set by you\"\n"
                          "category org.editor reset\nexpect usage apps today rows.1.category other\n"
                          "expect usage apps today rows.1.detail null\n"
                          "category org.editor reset\n"
                          "category org.unseen media\nexpect prefs values.appCategoryOverrides "
                          "\"{\\\"org.unseen\\\":\\\"media\\\"}\"\n"
                          "category org.unseen reset\nexpect prefs values.appCategoryOverrides {}\n"),
              unavailable);
}

TEST(MainWindow, UsageIsOfTheEnginesDay) {
    expectAllHold(used, "clock 2026-03-10T08:00:00Z\nexpect usage apps today rows.count 2\n"
                        "tick\nexpect usage apps today rows.count 0\n"
                        "expect usage apps week rows.count 2\n");
}

TEST(MainWindow, ViewsThatCannotReadAreEmpty) {
    expectAllHold(used, "store failing \"no disk\"\nforget-events\nexpect dashboard usageRows.count 0\n"
                        "expect-event log text \"longestStretch failed: no disk\"\n"
                        "expect usage apps today placeholder \"Nothing recorded in this range.\"\n"
                        "expect-event log text \"appTotals failed: no disk\"\n"
                        "expect breaks month empty \"Nothing recorded in this range.\"\n"
                        "expect-event log text \"history failed: no disk\"\n");
}

constexpr MalformedRow programRows[] = {
    {"show score", "no program is launched"},        {"show dashboard", "no program is launched"},
    {"show breaks today", "no program is launched"}, {"show usage apps today", "no program is launched"},
    {"press dashboard 1", "no program is launched"}, {"choose usageSource apps", "no program is launched"},
    {"hover none", "no program is launched"},        {"hover 2026-03-09", "no program is launched"},
    {"category a work", "no program is launched"},   {"category a reset", "no program is launched"},
};

TEST(MalformedMainWindow, WhatNeedsAProgram) {
    expectMalformed("", programRows);
    expectMalformed("launch\nquit\n", programRows);
}

TEST(MalformedMainWindow, WithAProgram) {
    expectMalformed("launch\n", {
                                    {"show score now", R"(unexpected "now")"},
                                    {"show dashboard now", R"(unexpected "now")"},
                                    {"show breaks", "missing RANGE"},
                                    {"show breaks year", R"("year" is no range)"},
                                    {"show breaks today now", R"(unexpected "now")"},
                                    {"show usage", "missing SOURCE"},
                                    {"show usage sites today", R"("sites" is not apps or websites)"},
                                    {"show usage apps", "missing RANGE"},
                                    {"show usage apps year", R"("year" is no range)"},
                                    {"show usage apps today Work", R"("Work" is no category)"},
                                    {"show usage apps today work now", R"(unexpected "now")"},
                                    {"press dashboard", "missing 1, 2 or 3"},
                                    {"press dashboard 4", R"("4" is not 1, 2 or 3)"},
                                    {"press dashboard 1 1", R"(unexpected "1")"},
                                    {"choose usageSource sites", R"("sites" is not offered)"},
                                    {"hover", "missing DAY or none"},
                                    {"hover today", R"("today" is not a day like 2026-03-09)"},
                                    {"hover none none", R"(unexpected "none")"},
                                    {"category", "missing BUNDLE"},
                                    {"category a", "missing VALUE"},
                                    {"category a gardening", R"("gardening" is no category)"},
                                    {"category a work now", R"(unexpected "now")"},
                                });
}

} // namespace
} // namespace kestrelfen
