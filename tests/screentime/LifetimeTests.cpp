#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

class TrackerLifetimeTest : public TrackerTest {
  protected:
    TrackerLifetimeTest() {
        openStore();
        create();
        run(3);
    }

    std::function<void()> telling() {
        return [this] { trace.add("told"); };
    }
};

TEST_F(TrackerLifetimeTest, WhatItQueuedEndsWithIt) {
    inState(BreakState::idle());
    sample();
    tracker.reset();
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 0"}));
}

TEST_F(TrackerLifetimeTest, NobodyIsToldOfAWriteOrReadThatOutlivesIt) {
    tracker->flush(telling());
    tracker->hydrate(telling());
    tracker->handleRollover(at("2026-03-10 00:00:00"), telling());
    tracker.reset();
    settle();
    EXPECT_EQ(storedToday(), lines({"active: 2", "org.editor 'Editor' 1: 2"}))
        << "the row that was handed over is written";
}

TEST_F(TrackerLifetimeTest, MayEndInTheCompletionOfAFlush) {
    tracker->flush([this] { tracker.reset(); });
    tracker->flush(telling());
    settle();
    EXPECT_EQ(tracker, nullptr);
    EXPECT_EQ(happened(), lines({"08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 0",
                                 "08:00:03 told"}));
}

TEST_F(TrackerLifetimeTest, MayEndInTheCompletionOfAHydrationOrRollover) {
    tracker->hydrate([this] { tracker.reset(); });
    settle();
    EXPECT_EQ(tracker, nullptr);
    create();
    tracker->handleRollover(at("2026-03-10 00:00:00"), [this] { tracker.reset(); });
    settle();
    EXPECT_EQ(tracker, nullptr);
}

} // namespace
} // namespace kestrelfen
