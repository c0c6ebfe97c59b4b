#include "MalformedLines.hpp"

namespace kestrelfen {
namespace {

TEST(Malformed, Form) {
    expectMalformed("# nothing yet\n\n", {
                                             {"lunch", R"("lunch" is no command)"},
                                             {"\"\"", R"("" is no command)"},
                                             {"Launch", R"("Launch" is no command)"},
                                             {"tick\r", "\"tick\r\" is no command"},
                                             {"\r", "\"\r\" is no command"},
                                             {"pref a string \"b", "a quote is not closed"},
                                             {R"(pref a string "\q")", R"(unknown escape \q)"},
                                             {"pref a string b\"c\"", "a quote inside a word"},
                                             {"pref a string \"b\"c", "a word is glued to a closing quote"},
                                             {"pref a string \xff", "the line is not UTF-8"},
                                             {"# \xc3", "the line is not UTF-8"},
                                             {"pref a string \xed\xa0\x80", "the line is not UTF-8"},
                                         });
}

TEST(Malformed, Time) {
    expectMalformed(
        "", {
                {"zone", "missing NAME"},
                {"zone Europe/Atlantis", R"("Europe/Atlantis" is no time zone)"},
                {"zone Europe", R"("Europe" is no time zone)"},
                {"zone \"\"", R"("" is no time zone)"},
                {"zone ../zoneinfo/UTC", R"("../zoneinfo/UTC" is no time zone)"},
                {"zone UTC UTC", R"(unexpected "UTC")"},
                {"clock", "missing DATE"},
                {"clock 2026-03-09", R"("2026-03-09" is not a date like 2026-03-09T08:00:00Z)"},
                {"clock 2026-03-09T08:00:00Z Z", R"(unexpected "Z")"},
                {"sleep", "missing SECONDS"},
                {"sleep soon", R"("soon" is not a decimal number of seconds to the microsecond)"},
                {"sleep -1", R"("-1" is negative)"},
                {"sleep 1 1", R"(unexpected "1")"},
                {"sleep 9223372036854", "the clock cannot go that far"},
                {"run", "missing SECONDS"},
                {"run -1", R"("-1" is negative)"},
                {"run 1e3", R"("1e3" is not a decimal number of seconds to the microsecond)"},
                {"run 0.0000001", R"("0.0000001" is not a decimal number of seconds to the microsecond)"},
                {"run 10 0", R"(the step "0" is not above 0)"},
                {"run 10 -1", R"(the step "-1" is not above 0)"},
                {"run 10 1 1", R"(unexpected "1")"},
                {"tick 1", R"(unexpected "1")"},
                {"bench", "missing N"},
                {"bench 0.5", R"("0.5" is not a whole number)"},
                {"bench -1", R"("-1" is negative)"},
            });
}

TEST(Malformed, World) {
    expectMalformed("",
                    {
                        {"pref", "missing KEY"},
                        {"pref a", "missing TYPE"},
                        {"pref a data 00", R"("data" is no type of a preference)"},
                        {"pref a bool", "missing VALUE"},
                        {"pref a bool yes", R"("yes" is not true or false)"},
                        {"pref a bool true true", R"(unexpected "true")"},
                        {"pref a int 1.5", R"("1.5" is not a whole number)"},
                        {"pref a int 9223372036854775808", R"("9223372036854775808" is not a whole number)"},
                        {"pref a double nan", R"("nan" is not a number)"},
                        {"pref a string", "missing VALUE"},
                        {"pref a string b c", R"(unexpected "c")"},
                        {"pref a date today", R"("today" is not a date like 2026-03-09T08:00:00Z)"},
                        {"pref a dict b", "missing VALUE"},
                        {"unpref", "missing KEY"},
                        {"unpref a b", R"(unexpected "b")"},
                        {"input", "missing active, away or age"},
                        {"input gone", R"("gone" is not active, away or age)"},
                        {"input active 1", R"(unexpected "1")"},
                        {"input age", "missing SECONDS"},
                        {"input age old", R"("old" is not a decimal number of seconds to the microsecond)"},
                        {"displays", "missing N"},
                        {"displays -1", R"("-1" is no number of displays from 0 to 1000)"},
                        {"displays two", R"("two" is not a whole number)"},
                        {"displays 1 2", R"(unexpected "2")"},
                        {"program", "missing active or inactive"},
                        {"program busy", R"("busy" is not active or inactive)"},
                        {"signal", "missing NAME"},
                        {"signal didwake", R"("didwake" is no signal)"},
                        {"signal didWake now", R"(unexpected "now")"},
                        {"lock", "missing ok, missing or failing"},
                        {"lock maybe", R"("maybe" is not ok, missing or failing)"},
                        {"lock failing", "missing TEXT"},
                        {"lock ok now", R"(unexpected "now")"},
                    });
}

TEST(Malformed, ReadingAndEvents) {
    expectMalformed("", {
                            {"show", "missing WHAT"},
                            {"show all", R"("all" is no reading)"},
                            {"show prefs now", R"(unexpected "now")"},
                            {"expect", "missing WHAT"},
                            {"expect prefs", "missing a key and a value"},
                            {"expect prefs values", "missing a key and a value"},
                            {"expect prefs now values {}", R"(unexpected "now")"},
                            {"expect all key value", R"("all" is no reading)"},
                            {"expect-event", "missing KIND"},
                            {"expect-event log", "missing KEY"},
                            {"expect-event log text", "missing VALUE"},
                            {"expect-event log text a b", R"(unexpected "b")"},
                            {"expect-event noise text a", R"("noise" is no kind of event)"},
                            {"events", "missing on or off"},
                            {"events loud", R"("loud" is not on or off)"},
                            {"events on off", R"(unexpected "off")"},
                            {"forget-events log", R"(unexpected "log")"},
                        });
}

constexpr MalformedRow programRows[] = {
    {"quit", "no program is launched"},
    {"kill", "no program is launched"},
    {"finish-onboarding", "no program is launched"},
    {"do pause", "no program is launched"},
    {"do snooze 60", "no program is launched"},
    {"press overlay skip", "no program is launched"},
    {"press overlay snooze 1", "no program is launched"},
    {"press warning start", "no program is launched"},
    {"press popover 1", "no program is launched"},
    {"go tasks", "no program is launched"},
    {"go quit", "no program is launched"},
    {"show popover", "no program is launched"},
    {"escape", "no program is launched"},
    {"show engine", "no program is launched"},
    {"show overlay", "no program is launched"},
    {"show warning", "no program is launched"},
    {"show status-item", "no program is launched"},
    {"expect engine state idle", "no program is launched"},
    {"task add a", "no program is launched"},
    {"task toggle a", "no program is launched"},
    {"task clear-completed", "no program is launched"},
    {"export f", "no program is launched"},
    {"delete-all-history", "no program is launched"},
    {"show tracker", "no program is launched"},
    {"show smart-pause", "no program is launched"},
    {"show day", "no program is launched"},
    {"show day 2026-03-09", "no program is launched"},
    {"show days 2026-03-09", "no program is launched"},
    {"show apps 1", "no program is launched"},
    {"show sites 1", "no program is launched"},
    {"show app-totals 2026-03-09", "no program is launched"},
    {"show site-totals 2026-03-09", "no program is launched"},
    {"show stretch", "no program is launched"},
    {"show history 2026-03-09 1", "no program is launched"},
    {"show csv", "no program is launched"},
    {"show tasks", "no program is launched"},
    {"expect tasks rows.count 0", "no program is launched"},
};

TEST(Malformed, WhatNeedsAProgramBeforeTheLaunch) {
    expectMalformed("", programRows);
}

TEST(Malformed, WhatNeedsAProgramAfterItsEnd) {
    expectMalformed("launch\nquit\n", programRows);
    expectMalformed("launch\nkill\n", programRows);
}

TEST(Malformed, WithAProgram) {
    expectMalformed("launch\n",
                    {
                        {"launch", "the program is launched already"},
                        {"launch now", R"(unexpected "now")"},
                        {"quit now", R"(unexpected "now")"},
                        {"kill now", R"(unexpected "now")"},
                        {"finish-onboarding now", R"(unexpected "now")"},
                        {"do", "missing the operation"},
                        {"do nothing", R"("nothing" is no operation)"},
                        {"do pause now", R"(unexpected "now")"},
                        {"do snooze", "missing SECONDS"},
                        {"do snooze 1m", R"("1m" is not a decimal number of seconds to the microsecond)"},
                        {"do postpone 60 60", R"(unexpected "60")"},
                        {"press", "missing the view"},
                        {"press window 1", R"("window" has no controls)"},
                        {"press overlay", "missing the control"},
                        {"press overlay start", R"("start" is no control of the overlay)"},
                        {"press overlay snooze", "missing 1, 3 or 5"},
                        {"press overlay snooze 2", R"("2" is not 1, 3 or 5)"},
                        {"press overlay snooze 1 3", R"(unexpected "3")"},
                        {"press overlay skip 1", R"(unexpected "1")"},
                        {"press warning", "missing the control"},
                        {"press warning skip", R"("skip" is no control of the warning)"},
                        {"press warning snooze ten", R"("ten" is not a whole number)"},
                        {"press warning start now", R"(unexpected "now")"},
                        {"press popover", "missing 1, 2 or 3"},
                        {"press popover 0", R"("0" is not 1, 2 or 3)"},
                        {"press popover 4", R"("4" is not 1, 2 or 3)"},
                        {"press popover one", R"("one" is not a whole number)"},
                        {"press popover 1 2", R"(unexpected "2")"},
                        {"go", "missing ITEM"},
                        {"go home", R"("home" is no item of the popover)"},
                        {"go tasks now", R"(unexpected "now")"},
                        {"show popover now", R"(unexpected "now")"},
                        {"escape twice", R"(unexpected "twice")"},
                        {"show engine now", R"(unexpected "now")"},
                    });
}

} // namespace
} // namespace kestrelfen
