#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

constexpr const char* newDay = "2026-03-10 00:00:00";

class TrackerRolloverTest : public TrackerTest {
  protected:
    TrackerRolloverTest() {
        openStore();
        platform.clock.set(at("23:59:50"));
        create();
        tick();
    }

    void rollOver() {
        tracker->handleRollover(at(newDay), [this] { trace.add("rolled over"); });
    }

    std::string storedOld() { return stored(at("00:00:00")); }
    std::string storedNew() { return stored(at(newDay)); }
};

TEST_F(TrackerRolloverTest, WritesTheOldDayAndBeginsTheNewOne) {
    run(9);
    rollOver();
    EXPECT_EQ(tracker->dayStart(), at("00:00:00")) << "until it is written";
    settle();
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log info ScreenTime: flushed 1 bucket(s)",
                                 "2026-03-10 00:00:00 flush 1 0", "2026-03-10 00:00:00 rolled over"}));
    EXPECT_EQ(tracker->dayStart(), at(newDay));
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    EXPECT_EQ(storedOld(), lines({"active: 9", "org.editor 'Editor' 1: 9"}));
    EXPECT_EQ(storedNew(), lines({"active: 0"}));
}

TEST_F(TrackerRolloverTest, TheFirstTickOfTheNewDayOnlyStartsTheClock) {
    run(5);
    rollOver();
    settle();
    forget();
    run(1);
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    run(2);
    EXPECT_EQ(tracker->todayActiveSeconds(), 2);
    tracker->flush();
    settle();
    forget();
    EXPECT_EQ(storedNew(), lines({"active: 2", "org.editor 'Editor' 1: 2"}));
}

TEST_F(TrackerRolloverTest, WithNothingToWriteTheDayTurnsAtOnce) {
    rollOver();
    EXPECT_EQ(tracker->dayStart(), at(newDay));
    settle();
    EXPECT_EQ(happened(), lines({"23:59:51 rolled over"}));
}

TEST_F(TrackerRolloverTest, WithoutAStoreTheDayTurnsAtOnceAndAppSecondsStay) {
    store.reset();
    create();
    useChrome();
    run(3);
    forget();
    rollOver();
    EXPECT_EQ(happened(), lines({"23:59:54 rolled over"}));
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 2"}));
}

TEST_F(TrackerRolloverTest, ADayThatIsStoredAlreadyIsTakenUp) {
    store->addActiveTime({100, std::nullopt, std::nullopt, 0, at(newDay)}, {});
    rollOver();
    settle();
    EXPECT_EQ(tracker->todayActiveSeconds(), 100);
    forget();
}

TEST_F(TrackerRolloverTest, SecondsCreditedWhileTheOldDayIsWrittenGoToTheNewDayButNotThoseOfWebsites) {
    useChrome();
    run(2);
    forget();
    rollOver();
    sample();
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 1", "example.com: 1"}));
    settle();
    EXPECT_EQ(pending(), lines({"com.google.Chrome 'Chrome' 1: 1"}));
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    tracker->flush();
    settle();
    EXPECT_EQ(storedOld(), lines({"active: 2", "com.google.Chrome 'Chrome' 1: 2", "example.com: 2"}));
    EXPECT_EQ(storedNew(), lines({"active: 1", "com.google.Chrome 'Chrome' 1: 1"}));
    forget();
}

TEST_F(TrackerRolloverTest, AFlushThatBeganBeforeMidnightWritesToTheOldDay) {
    useChrome();
    run(3);
    forget();
    tracker->flush();
    rollOver();
    settle();
    EXPECT_EQ(storedOld(), lines({"active: 3", "com.google.Chrome 'Chrome' 1: 3", "example.com: 3"}));
    EXPECT_EQ(storedNew(), lines({"active: 0"}));
    forget();
}

TEST_F(TrackerRolloverTest, TheRhythmAndTheLastAppOutliveTheDay) {
    run(4);
    rollOver();
    settle();
    forget();
    platform.applications.start({"org.mail", "Mail", 2}, 1);
    platform.applications.setFrontmost(2);
    run(2);
    EXPECT_EQ(happened(), lines({"23:59:57 log info ScreenTime: flushed 1 bucket(s)", "23:59:57 flush 1 0"}))
        << "a switch";
    run(23);
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:20 log info ScreenTime: flushed 1 bucket(s)",
                                 "2026-03-10 00:00:20 flush 1 0"}));
}

TEST_F(TrackerRolloverTest, WithNothingPendingTheDayTurnsOnlyOnceAFlushUnderWayIsWritten) {
    run(9);
    tracker->flush();
    EXPECT_EQ(pending(), "");
    rollOver();
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(tracker->dayStart(), at("00:00:00"));
    EXPECT_EQ(tracker->todayActiveSeconds(), 9);
    settle();
    EXPECT_EQ(happened(), lines({"2026-03-10 00:00:00 log info ScreenTime: flushed 1 bucket(s)",
                                 "2026-03-10 00:00:00 flush 1 0", "2026-03-10 00:00:00 rolled over"}));
    EXPECT_EQ(tracker->dayStart(), at(newDay));
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    EXPECT_EQ(storedOld(), lines({"active: 9", "org.editor 'Editor' 1: 9"}));
    EXPECT_EQ(storedNew(), lines({"active: 0"}));
}

} // namespace
} // namespace kestrelfen
