#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

class FlushMomentTest : public TrackerTest {
  protected:
    FlushMomentTest() {
        openStore();
        create();
        tick();
    }
};

TEST_F(FlushMomentTest, FlushesEveryThirtySecondsOnItsOwnRhythm) {
    run(28);
    EXPECT_EQ(happened(), "");
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:30 log info ScreenTime: flushed 1 bucket(s)", "08:00:30 flush 1 0"}));
    run(10);
    tracker->flush();
    settle();
    forget();
    run(19);
    EXPECT_EQ(happened(), "") << "another flush does not move it";
    run(1);
    EXPECT_EQ(happened(), lines({"08:01:00 log info ScreenTime: flushed 1 bucket(s)", "08:01:00 flush 1 0"}));
    EXPECT_EQ(storedToday(), lines({"active: 59", "org.editor 'Editor' 1: 59"}));
}

TEST_F(FlushMomentTest, TheRhythmIsAskedAlsoAtTicksThatCreditNothing) {
    tick();
    tick(28);
    EXPECT_EQ(happened(), lines({"08:00:30 log info ScreenTime: flushed 1 bucket(s)", "08:00:30 flush 1 0"}));
    inState(BreakState::idle());
    tick();
    inState(BreakState::working(at("09:00:00")));
    tick(60);
    tick();
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 1"})) << "due at 08:01:31, with nothing yet to write";
    EXPECT_EQ(happened(), "");
}

TEST_F(FlushMomentTest, ASwitchFlushesAtTheTickThatCreditsTheOtherApp) {
    platform.applications.start({"org.mail", "Mail", 2}, 1);
    run(3);
    EXPECT_EQ(happened(), "") << "the first app of a run flushes nothing";
    platform.applications.setFrontmost(2);
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:05 log info ScreenTime: flushed 2 bucket(s)", "08:00:05 flush 2 0"}));
    EXPECT_EQ(storedToday(), lines({"active: 4", "org.editor 'Editor' 1: 3", "org.mail 'Mail' 1: 1"}));
    run(3);
    EXPECT_EQ(happened(), "");
}

TEST_F(FlushMomentTest, ASwitchToNothingAndBackFlushesTwice) {
    run(1);
    platform.applications.setFrontmost(std::nullopt);
    run(1);
    platform.applications.setFrontmost(1);
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:03 log info ScreenTime: flushed 2 bucket(s)", "08:00:03 flush 2 0",
                                 "08:00:04 log info ScreenTime: flushed 1 bucket(s)", "08:00:04 flush 1 0"}));
}

TEST_F(FlushMomentTest, ASwitchSeenOnlyByTicksThatCreditNothingFlushesLater) {
    platform.applications.start({"org.mail", "Mail", 2}, 1);
    run(1);
    platform.applications.setFrontmost(2);
    tick(9);
    EXPECT_EQ(happened(), "");
    tick();
    EXPECT_EQ(happened(), lines({"08:00:12 log info ScreenTime: flushed 2 bucket(s)", "08:00:12 flush 2 0"}));
}

TEST_F(FlushMomentTest, AnotherProcessOrNameOfTheSameAppFlushesNothing) {
    platform.applications.start({"org.editor", "Editor Two", 3}, 1);
    run(1);
    platform.applications.setFrontmost(3);
    run(1);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 1", "org.editor 'Editor Two' 1: 1"}));
}

TEST_F(FlushMomentTest, TheEndOfCountingFlushesOnce) {
    run(2);
    inState(BreakState::paused(PauseReason::screenLocked));
    run(40);
    EXPECT_EQ(happened(), lines({"08:00:04 log info ScreenTime: flushed 1 bucket(s)", "08:00:04 flush 1 0"}));
}

TEST_F(FlushMomentTest, NotCountingFromTheStartQueuesNothing) {
    create();
    inState(BreakState::idle());
    sample(40);
    EXPECT_FALSE(platform.mainQueue.drain());
    inState(BreakState::working(at("09:00:00")));
    sample(1);
    EXPECT_TRUE(platform.mainQueue.drain()) << "the rhythm, by contrast, is due";
}

} // namespace
} // namespace kestrelfen
