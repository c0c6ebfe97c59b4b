#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

class FlushTest : public TrackerTest {
  protected:
    FlushTest() {
        openStore();
        create();
        tick();
    }

    void flush() {
        tracker->flush([this] { trace.add("flushed"); });
    }

    /// The rows that the store holds now, without letting anything else run to its end.
    std::string rows() {
        std::string text;
        store->websiteUsage(at("00:00:00"), 100, [&](const std::vector<WebsiteUsageSummary>& sites) {
            text += std::to_string(sites.size()) + " sites, ";
        });
        store->appUsage(at("00:00:00"), 100, [&](const std::vector<AppUsageSummary>& apps) {
            text += std::to_string(apps.size()) + " apps: ";
            text += apps.empty() ? "" : apps.back().bundleIdentifier;
        });
        platform.storeExecutor.drain();
        platform.mainQueue.drain();
        return text;
    }
};

TEST_F(FlushTest, WritesWhatIsPendingAndTellsOfIt) {
    run(3);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 3"}));
    flush();
    EXPECT_EQ(pending(), "") << "emptied at once";
    EXPECT_EQ(happened(), "") << "written later";
    settle();
    EXPECT_EQ(happened(), lines({"08:00:04 log info ScreenTime: flushed 1 bucket(s)", "08:00:04 flush 1 0",
                                 "08:00:04 flushed"}));
    EXPECT_EQ(storedToday(), lines({"active: 3", "org.editor 'Editor' 1: 3"}));
    EXPECT_EQ(tracker->todayActiveSeconds(), 3);
}

TEST_F(FlushTest, WithNothingPendingNothingHappens) {
    flush();
    EXPECT_EQ(happened(), lines({"08:00:01 flushed"}));
}

TEST_F(FlushTest, AppSecondsOfSeveralFlushesAddUp) {
    for (int round = 0; round < 3; ++round) {
        run(2);
        tracker->flush();
        settle();
    }
    EXPECT_EQ(storedToday(), lines({"active: 6", "org.editor 'Editor' 1: 6"}));
    forget();
}

TEST_F(FlushTest, SecondsWithoutAnAppGoToTheDayAloneAndMakeNoRow) {
    platform.applications.setFrontmost(std::nullopt);
    run(2);
    flush();
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 2"}));
    EXPECT_EQ(happened(), lines({"08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 0",
                                 "08:00:03 flushed"}));
}

TEST_F(FlushTest, AnAppWithoutANameIsStoredAsUnattributed) {
    platform.applications.start({"org.nameless", std::nullopt, 5}, 1);
    platform.applications.setFrontmost(5);
    tick();
    tracker->flush();
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 1", "org.nameless 'Unattributed' 1: 1"}));
    forget();
}

TEST_F(FlushTest, WebsitesGoFirstThenAppsInTheOrderOfTheirComingOneByOne) {
    for (const int number : {9, 3, 5}) {
        platform.applications.start({"org.app" + std::to_string(number), "App", number}, 1);
        platform.applications.setFrontmost(number);
        sample(1.0 / number);
    }
    useChrome();
    sample(0.01);
    platform.mainQueue.clear();
    flush();
    std::string steps;
    for (int step = 0; step < 5; ++step) {
        platform.storeExecutor.drain();
        steps += rows() + "\n";
    }
    EXPECT_EQ(steps, lines({"1 sites, 0 apps: ", "1 sites, 1 apps: org.app9", "1 sites, 2 apps: org.app9",
                            "1 sites, 3 apps: org.app9", "1 sites, 4 apps: com.google.Chrome"}));
    settle();
    forget();
}

TEST_F(FlushTest, NothingIsToldBeforeTheLastRowIsWritten) {
    useChrome();
    tick();
    forget();
    flush();
    platform.storeExecutor.drain();
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), "");
    platform.storeExecutor.drain();
    platform.mainQueue.drain();
    EXPECT_EQ(happened(), lines({"08:00:02 log info ScreenTime: flushed 1 bucket(s)", "08:00:02 flush 1 1",
                                 "08:00:02 flushed"}));
}

TEST_F(FlushTest, TheFastCyclePrintsTheSumRoundedUp) {
    platform.preferences.set("debugFastCycle", true);
    create();
    tick();
    tick(0.25);
    platform.applications.setFrontmost(std::nullopt);
    sample(2);
    platform.mainQueue.clear();
    flush();
    settle();
    EXPECT_EQ(happened(), lines({"08:00:04.25 stdout [Kestrelfen] flushed 3 s across 2 bucket(s)",
                                 "08:00:04.25 log info ScreenTime: flushed 2 bucket(s)",
                                 "08:00:04.25 flush 2 0", "08:00:04.25 flushed"}));
}

TEST_F(FlushTest, AWholeSumIsPrintedAsItIsAndTheChoiceIsReadAtTheStart) {
    platform.preferences.set("debugFastCycle", true);
    create();
    platform.preferences.set("debugFastCycle", false);
    run(3);
    flush();
    settle();
    EXPECT_EQ(happened(), lines({"08:00:04 stdout [Kestrelfen] flushed 2 s across 1 bucket(s)",
                                 "08:00:04 log info ScreenTime: flushed 1 bucket(s)", "08:00:04 flush 1 0",
                                 "08:00:04 flushed"}));
}

TEST_F(FlushTest, SecondsCreditedWhileItIsWrittenWaitForTheNextOne) {
    run(2);
    tracker->flush();
    sample();
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 1"}));
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 2", "org.editor 'Editor' 1: 2"}));
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 1"}));
    forget();
}

TEST_F(FlushTest, OverlappingFlushesWriteEachSecondOnce) {
    run(2);
    flush();
    sample();
    flush();
    sample();
    flush();
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 4", "org.editor 'Editor' 1: 4"}));
    forget();
}

TEST_F(FlushTest, ItIsNotDoneBeforeEarlierOnesAre) {
    useChrome();
    tick();
    forget();
    tracker->flush();
    flush();
    EXPECT_EQ(happened(), "");
    settle();
    EXPECT_EQ(happened(), lines({"08:00:02 log info ScreenTime: flushed 1 bucket(s)", "08:00:02 flush 1 1",
                                 "08:00:02 flushed"}));
}

TEST_F(FlushTest, ALaterOneThatEndsFirstWaitsForTheEarlierOne) {
    useChrome();
    tick();
    platform.applications.setFrontmost(1);
    forget();
    tracker->flush();
    sample();
    flush();
    settle();
    EXPECT_EQ(happened(), lines({"08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 0",
                                 "08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 1",
                                 "08:00:03 flushed"}));
}

TEST_F(FlushTest, ItDoesNotWaitForOnesThatBeginLater) {
    tick();
    forget();
    flush();
    useChrome();
    sample();
    tracker->flush();
    settle();
    EXPECT_EQ(happened(),
              lines({"08:00:03 script com.google.Chrome", "08:00:03 log info ScreenTime: flushed 1 bucket(s)",
                     "08:00:03 flush 1 0", "08:00:03 flushed",
                     "08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 1"}));
}

TEST_F(FlushTest, AFailingStoreLosesTheSecondsAndTheCountRunsAhead) {
    run(2);
    storeFailure = "disk full";
    flush();
    settle();
    EXPECT_EQ(happened(), lines({"08:00:03 log error Store: addActiveTime failed: disk full",
                                 "08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 0",
                                 "08:00:03 flushed"}));
    storeFailure.clear();
    EXPECT_EQ(tracker->todayActiveSeconds(), 2);
    tick();
    flush();
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 1", "org.editor 'Editor' 1: 1"}));
    EXPECT_EQ(tracker->todayActiveSeconds(), 3);
    tracker->hydrate();
    settle();
    EXPECT_EQ(tracker->todayActiveSeconds(), 1);
    forget();
}

TEST_F(FlushTest, WithoutAStoreTheSecondsGatherInMemory) {
    store.reset();
    create();
    useChrome();
    run(121);
    tracker->flush([this] { trace.add("done"); });
    tracker->hydrate([this] { trace.add("hydrated"); });
    settle();
    EXPECT_EQ(tracker->todayActiveSeconds(), 120);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 120", "example.com: 120"}));
    EXPECT_NE(happened().find("08:02:02 done\n08:02:02 hydrated\n"), std::string::npos);
}

TEST_F(FlushTest, ARestartOnTheSameDayGoesOnFromTheStoredTotal) {
    run(5);
    flush();
    settle();
    forget();
    create();
    tracker->hydrate([this] { trace.add("hydrated"); });
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    settle();
    EXPECT_EQ(happened(), lines({"08:00:06 hydrated"}));
    EXPECT_EQ(tracker->todayActiveSeconds(), 5);
    run(3);
    EXPECT_EQ(tracker->todayActiveSeconds(), 7);
}

TEST_F(FlushTest, HydratingReplacesTheCount) {
    run(5);
    tracker->hydrate();
    settle();
    EXPECT_EQ(tracker->todayActiveSeconds(), 0) << "what is pending is no part of it";
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 5"}));
}

} // namespace
} // namespace kestrelfen
