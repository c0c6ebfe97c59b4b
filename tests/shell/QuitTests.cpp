#include "AppDelegateTest.hpp"

namespace kestrelfen {
namespace {

class QuitTest : public AppDelegateTest {
  protected:
    void quit() {
        delegate().applicationShouldTerminate([this] { trace.add("may end"); });
        settle();
        delegate().applicationWillTerminate();
        settle();
    }
};

TEST_F(QuitTest, AnswerComesLater) {
    launch();
    bool mayEnd = false;
    delegate().applicationShouldTerminate([&mayEnd] { mayEnd = true; });
    EXPECT_FALSE(mayEnd);
    EXPECT_EQ(state(), "working");
    settle();
    EXPECT_TRUE(mayEnd);
    EXPECT_EQ(state(), "working");
}

TEST_F(QuitTest, LeavesNoTimerNoWatchAndNoBreak) {
    launch();
    quit();
    EXPECT_EQ(happened(), lines({"08:00:00 may end"}));
    EXPECT_EQ(platform.ticker.running(), 0U);
    EXPECT_EQ(state(), "idle");
    EXPECT_EQ(engine().nextBreakAt(), std::nullopt);
    platform.systemSignals.send(SystemSignal::willSleep);
    EXPECT_EQ(state(), "idle");
}

TEST_F(QuitTest, TakesTheWindowsDownAndRecordsNothing) {
    launch();
    beginBreak();
    forget();
    quit();
    EXPECT_EQ(happened(), lines({"08:00:00 may end", "08:00:00 window 1 goes"}));
    platform.displays.setCount(2);
    EXPECT_TRUE(history(at("00:00:00")).empty());
    EXPECT_EQ(engine().breaksCompletedToday(), 0);
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
}

TEST_F(QuitTest, TakesTheCardAway) {
    launch();
    reachWarning();
    forget();
    quit();
    EXPECT_EQ(happened(), lines({"08:19:55 may end", "08:19:55 card goes"}));
}

TEST_F(QuitTest, RecordsNoPause) {
    launch();
    engine().pause(PauseReason::manual);
    tickAfter(60);
    forget();
    quit();
    EXPECT_EQ(happened(), lines({"08:01:00 may end"}));
    EXPECT_TRUE(history(at("00:00:00")).empty());
}

TEST_F(QuitTest, NeedsNoStartedEngine) {
    platform.preferences.remove("hasCompletedOnboarding");
    launch();
    quit();
    EXPECT_EQ(happened(), lines({"08:00:00 may end"}));
    EXPECT_EQ(state(), "idle");
}

} // namespace
} // namespace kestrelfen
