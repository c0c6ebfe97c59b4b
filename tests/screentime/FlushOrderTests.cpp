#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

/// Flushes of several rows, and several at a time.
class FlushOrderTest : public TrackerTest {
  protected:
    FlushOrderTest() {
        openStore();
        create();
        tick();
        useChrome();
        tick();
    }
};

TEST_F(FlushOrderTest, EveryWebsiteIsWritten) {
    browse("https://other.example/");
    run(5);
    tracker->flush();
    settle();
    EXPECT_EQ(storedToday(),
              lines({"active: 6", "com.google.Chrome 'Chrome' 1: 6", "example.com: 5", "other.example: 1"}));
    forget();
}

TEST_F(FlushOrderTest, ALaterOneThatEndsFirstDoesNotEndTheEarlierOne) {
    platform.applications.setFrontmost(1);
    forget();
    tracker->flush([this] { trace.add("flushed"); });
    sample();
    platform.mainQueue.clear();
    tracker->flush();
    settle();
    EXPECT_EQ(happened(), lines({"08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 0",
                                 "08:00:03 log info ScreenTime: flushed 1 bucket(s)", "08:00:03 flush 1 1",
                                 "08:00:03 flushed"}));
}

} // namespace
} // namespace kestrelfen
