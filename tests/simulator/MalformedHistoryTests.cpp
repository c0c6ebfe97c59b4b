#include "MalformedLines.hpp"

namespace kestrelfen {
namespace {

TEST(Malformed, Senses) {
    expectMalformed("app start a A 7\n",
                    {
                        {"display", "missing asleep or awake"},
                        {"display dim", R"("dim" is not asleep or awake)"},
                        {"display asleep now", R"(unexpected "now")"},
                        {"app", "missing start, move or stop"},
                        {"app launch a A 1", R"("launch" is not start, move or stop)"},
                        {"app start", "missing BUNDLE"},
                        {"app start a", "missing NAME"},
                        {"app start a A", "missing PID"},
                        {"app start a A one", R"("one" is not a whole number)"},
                        {"app start a A 0", R"("0" is no process)"},
                        {"app start a A -1", R"("-1" is no process)"},
                        {"app start a A 2147483648", R"("2147483648" is no process)"},
                        {"app start b B 7", R"(an application runs as "7" already)"},
                        {"app start a A 1 -1", R"("-1" is no display from 0 to 1000)"},
                        {"app start a A 1 1001", R"("1001" is no display from 0 to 1000)"},
                        {"app start a A 1 left", R"("left" is not a whole number)"},
                        {"app start a A 1 1 1", R"(unexpected "1")"},
                        {"app move", "missing PID"},
                        {"app move 7", "missing DISPLAY"},
                        {"app move 8 1", R"(no application runs as "8")"},
                        {"app move 7 -1", R"("-1" is no display from 0 to 1000)"},
                        {"app move 7 1 1", R"(unexpected "1")"},
                        {"app stop", "missing PID"},
                        {"app stop 8", R"(no application runs as "8")"},
                        {"app stop 7 7", R"(unexpected "7")"},
                        {"front", "missing PID or none"},
                        {"front 8", R"(no application runs as "8")"},
                        {"front a", R"("a" is not a whole number)"},
                        {"front none 7", R"(unexpected "7")"},
                        {"audio", "missing unsupported, in or out"},
                        {"audio loud", R"("loud" is not unsupported, in or out)"},
                        {"audio unsupported a", R"(unexpected "a")"},
                        {"browser", "missing KIND"},
                        {"browser firefox url x", R"("firefox" is no browser)"},
                        {"browser Safari url x", R"("Safari" is no browser)"},
                        {"browser safari", "missing permission or url"},
                        {"browser safari title x", R"("title" is not permission or url)"},
                        {"browser safari url", "missing TEXT"},
                        {"browser safari url a b", R"(unexpected "b")"},
                        {"browser safari permission", "missing VALUE"},
                        {"browser safari permission given", R"("given" is no permission)"},
                        {"browser safari permission granted now", R"(unexpected "now")"},
                    });
}

TEST(Malformed, Store) {
    expectMalformed("", {
                            {"store", "missing broken, ok, failing or working"},
                            {"store closed", R"("closed" is not broken, ok, failing or working)"},
                            {"store ok now", R"(unexpected "now")"},
                            {"store working now", R"(unexpected "now")"},
                            {"store broken a b", R"(unexpected "b")"},
                            {"store failing a b", R"(unexpected "b")"},
                        });
}

TEST(Malformed, History) {
    constexpr const char* noDay = R"("09.03.2026" is not a day like 2026-03-09)";
    expectMalformed("launch\n", {
                                    {"task", "missing the action"},
                                    {"task rename a", R"("rename" is nothing to do with a task)"},
                                    {"task add", "missing TITLE"},
                                    {"task add a b", R"(unexpected "b")"},
                                    {"task activate", "missing TITLE"},
                                    {"task toggle", "missing TITLE"},
                                    {"task delete", "missing TITLE"},
                                    {"task delete a b", R"(unexpected "b")"},
                                    {"task clear-completed a", R"(unexpected "a")"},
                                    {"export", "missing FILE"},
                                    {"export a b", R"(unexpected "b")"},
                                    {"delete-all-history now", R"(unexpected "now")"},
                                    {"show tracker now", R"(unexpected "now")"},
                                    {"show smart-pause now", R"(unexpected "now")"},
                                    {"show day 09.03.2026", noDay},
                                    {"show day 2026-02-30", R"("2026-02-30" is not a day like 2026-03-09)"},
                                    {"show day 2026-03-09 1", R"(unexpected "1")"},
                                    {"show days", "missing DAY"},
                                    {"show days 09.03.2026", noDay},
                                    {"show days 2026-03-09 1", R"(unexpected "1")"},
                                    {"show apps", "missing LIMIT"},
                                    {"show apps all", R"("all" is not a whole number)"},
                                    {"show apps 1 09.03.2026", noDay},
                                    {"show apps 1 2026-03-09 1", R"(unexpected "1")"},
                                    {"show sites", "missing LIMIT"},
                                    {"show sites 1.5", R"("1.5" is not a whole number)"},
                                    {"show sites 1 2026-03-09 1", R"(unexpected "1")"},
                                    {"show app-totals", "missing DAY"},
                                    {"show app-totals 2026-03-09 1", R"(unexpected "1")"},
                                    {"show site-totals", "missing DAY"},
                                    {"show site-totals 2026-03-09 1", R"(unexpected "1")"},
                                    {"show stretch 09.03.2026", noDay},
                                    {"show stretch 2026-03-09 1", R"(unexpected "1")"},
                                    {"show history", "missing DAY"},
                                    {"show history 2026-03-09", "missing LIMIT"},
                                    {"show history 2026-03-09 many", R"("many" is not a whole number)"},
                                    {"show history 2026-03-09 1 1", R"(unexpected "1")"},
                                    {"show csv 2026-03-09", R"(unexpected "2026-03-09")"},
                                    {"show tasks a", R"(unexpected "a")"},
                                    {"expect history 2026-03-09 rows.count 0", "missing LIMIT"},
                                    {"expect days days.count 0", "missing DAY"},
                                });
}

TEST(Malformed, NegativeLimitIsAFaultOfTheProgram) {
    for (const std::string reading : {"history 2026-03-09 -1", "apps -1", "sites -1 2026-03-09"}) {
        const SimulatorRun run = simulate("launch\nshow " + reading + "\nshow prefs\n");
        EXPECT_EQ(run.status, 3) << reading;
        EXPECT_EQ(run.output, "") << reading;
        EXPECT_EQ(run.errors, "kestrelfen: fault: a negative limit\n") << reading;
    }
}

} // namespace
} // namespace kestrelfen
