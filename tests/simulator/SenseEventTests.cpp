#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string printed(std::string_view before, std::string_view lines) {
    const SimulatorRun run = simulate(std::string(before) + "events on\n" + std::string(lines));
    EXPECT_EQ(run.status, 0) << run.errors;
    return run.output;
}

std::string event(const std::string& kind, const std::string& time, const std::string& rest = {}) {
    return R"({"event":")" + kind + R"(","at":"2026-03-09T)" + time + ".000Z\"" + rest + "}\n";
}

std::string logged(const std::string& time, const std::string& level, const std::string& category,
                   const std::string& text) {
    return event("log", time,
                 R"(,"level":")" + level + R"(","category":")" + category + R"(","text":")" + text + '"');
}

std::string flushed(const std::string& time, int buckets, int sites) {
    return logged(time, "info", "ScreenTime", "flushed " + std::to_string(buckets) + " bucket(s)") +
           event("flush", time,
                 R"(,"buckets":)" + std::to_string(buckets) + R"(,"sites":)" + std::to_string(sites));
}

TEST(SenseEvents, AudioIsSampledEveryFiveSeconds) {
    EXPECT_EQ(printed(launched, "run 11\n"),
              event("audio", "08:00:01") + event("audio", "08:00:06") + event("audio", "08:00:11"));
}

TEST(SenseEvents, AudioComesBeforeItsLines) {
    EXPECT_EQ(printed("audio unsupported\n",
                      std::string("events off\n") + std::string(launched) + "events on\nrun 1\n"),
              event("audio", "08:00:01") +
                  logged("08:00:01", "debug", "AudioActivity",
                         "per-process audio objects are unavailable on this system"));
    EXPECT_EQ(printed("audio in us.zoom.xos\n",
                      std::string("events off\n") + std::string(launched) + "events on\nrun 1\n"),
              event("audio", "08:00:01") + logged("08:00:01", "info", "SmartPause", "smart pause meetings") +
                  logged("08:00:01", "info", "BreakEngine", "paused (meeting, 19:59 left)"));
}

TEST(SenseEvents, ScriptRunsEveryFiveSecondsAndComesBeforeItsFailure) {
    EXPECT_EQ(printed("pref websiteStats.safari bool true\nbrowser safari permission granted\n"
                      "browser safari url error\napp start com.apple.Safari Safari 1 1\nfront 1\n",
                      std::string("events off\n") + std::string(launched) + "run 1\nevents on\nrun 6\n"),
              event("script", "08:00:02", R"(,"browser":"safari")") +
                  logged("08:00:02", "debug", "BrowserScripting", "Safari script failed: failed") +
                  event("audio", "08:00:06") + event("script", "08:00:07", R"(,"browser":"safari")") +
                  logged("08:00:07", "debug", "BrowserScripting", "Safari script failed: failed"));
}

TEST(SenseEvents, FlushComesEveryThirtySeconds) {
    EXPECT_EQ(printed(std::string(launched) + "run 29\n", "run 1\n"), flushed("08:00:30", 1, 0));
    EXPECT_EQ(printed(std::string(launched) + "run 59\n", "run 1\n"), flushed("08:01:00", 1, 0));
}

TEST(SenseEvents, ApplicationSwitchFlushesAtTheTickThatCreditsTheNextOne) {
    EXPECT_EQ(printed("pref websiteStats.arc bool true\nbrowser arc permission granted\n"
                      "browser arc url http://a.org\napp start company.thebrowser.Browser Arc 1 1\n"
                      "app start b B 2 1\nfront 1\n" +
                          std::string(launched) + "run 9\nfront 2\n",
                      "run 2\n"),
              flushed("08:00:10", 2, 1) + event("audio", "08:00:11"));
}

TEST(SenseEvents, FlushPrintsBeforeItsLine) {
    const std::string paused = "paused (manual, 0:05 left)";
    EXPECT_EQ(printed("pref debugFastCycle bool true\n" + std::string(launched) + "run 5\n",
                      "do pause\nevents off\n"),
              logged("08:00:05", "info", "BreakEngine", paused) +
                  event("stdout", "08:00:05", ",\"text\":\"[Kestrelfen] 08:00:05 " + paused + '"') +
                  event("stdout", "08:00:05", ",\"text\":\"[Kestrelfen] flushed 4 s across 1 bucket(s)\"") +
                  flushed("08:00:05", 1, 0));
}

TEST(SenseEvents, FlushThatWritesNothingIsNone) {
    EXPECT_EQ(printed(launched, "do pause\n"),
              logged("08:00:00", "info", "BreakEngine", "paused (manual, 20:00 left)"));
    EXPECT_EQ(printed("store broken\n" + std::string(launched) + "run 29\n", "run 1\nquit\n"), "");
}

TEST(SenseEvents, QuitFlushesAndKillDoesNot) {
    EXPECT_EQ(printed(std::string(launched) + "run 5\n", "quit\n"), flushed("08:00:05", 1, 0));
    EXPECT_EQ(printed(std::string(launched) + "run 5\n", "kill\n"), "");
}

TEST(SenseEvents, SummaryOfTheDayHasNoSound) {
    EXPECT_EQ(
        printed("clock 2026-03-09T17:59:58Z\npref soundOnBreakStart bool true\n" + std::string(launched) +
                    "run 1\n",
                "run 1\nrun 1\n"),
        event(
            "notification", "18:00:00",
            R"(,"title":"Today on Kestrelfen","body":"0 breaks, 0 skipped, 1 s of screen time.","sound":false)"));
}

} // namespace
} // namespace kestrelfen
