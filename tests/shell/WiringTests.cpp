#include "AppDelegateTest.hpp"
#include "core/Settings.hpp"

namespace kestrelfen {
namespace {

class WiringTest : public AppDelegateTest {
  protected:
    void TearDown() override {
        forget();
        destroyDelegate();
        forget();
    }

    void ticks(int count) {
        for (int tick = 0; tick < count; ++tick) {
            tickAfter(1);
        }
    }

    TaskID addTask(const std::string& title) {
        TaskID id = 0;
        delegate().store()->createTask(
            {.title = title, .notes = {}, .dueOn = {}, .now = platform.clock.now()},
            [&id](const auto& task) { id = task->id; });
        settle();
        return id;
    }
};

TEST_F(WiringTest, EachTickIsSampled) {
    launch();
    ticks(11);
    EXPECT_DOUBLE_EQ(delegate().screenTime().todayActiveSeconds(), 10);
}

TEST_F(WiringTest, IdleThresholdOfTheEngineIsTheTrackersToo) {
    platform.preferences.set("idleMode", std::string("custom"));
    platform.preferences.set("idleThresholdSeconds", 30.0);
    launch();
    ticks(11);
    // The engine looks at no age of input in a pause by hand: what stops the seconds is the tracker.
    engine().pause(PauseReason::manual);
    platform.inputIdle.setAge(30);
    ticks(5);
    EXPECT_DOUBLE_EQ(delegate().screenTime().todayActiveSeconds(), 15);
    platform.inputIdle.setAge(31);
    ticks(10);
    EXPECT_DOUBLE_EQ(delegate().screenTime().todayActiveSeconds(), 15);
}

TEST_F(WiringTest, SecondThatCrossesMidnightGoesToTheOldDay) {
    platform.clock.set(at("23:59:58.5"));
    launch();
    ticks(4);
    destroyDelegate();
    settle();
    launch();
    EXPECT_DOUBLE_EQ(summary(at("2026-03-09 00:00:00")).activeSeconds, 1);
}

TEST_F(WiringTest, NewDayIsPrunedAfterTheOldOneWasWritten) {
    platform.clock.set(at("23:59:58.5"));
    launch();
    platform.preferences.remove("lastPrunedDayStart");
    platform.log.onLine = [this](const FakeLog::Line& line) { trace.add(line.text); };
    remember(at("2024-01-01 00:00:00"), 1, 0);
    forget();
    ticks(2);
    const std::string text = happened();
    const auto flushed = text.find("flushed 1 bucket(s)");
    const auto pruned = text.find("pruned 1 day record(s)");
    ASSERT_NE(flushed, std::string::npos) << text;
    ASSERT_NE(pruned, std::string::npos) << text;
    EXPECT_LT(flushed, pruned);
}

TEST_F(WiringTest, CompletedBreakCreditsTheActiveTask) {
    launch();
    const TaskID task = addTask("Write");
    addTask("Read");
    Settings::setActiveTaskID(platform.preferences, task);
    beginBreak();
    tickAfter(20);
    EXPECT_EQ(tasks().at(0).completedBreaks, 1);
    EXPECT_EQ(tasks().at(1).completedBreaks, 0);
}

TEST_F(WiringTest, CreditGoesToTheTaskThatWasActiveWhenTheIntervalEnded) {
    launch();
    Settings::setActiveTaskID(platform.preferences, addTask("Write"));
    const TaskID other = addTask("Read");
    beginBreak();
    platform.clock.advance(20);
    platform.ticker.fire();
    Settings::setActiveTaskID(platform.preferences, other);
    settle();
    EXPECT_EQ(tasks().at(0).completedBreaks, 1);
    EXPECT_EQ(tasks().at(1).completedBreaks, 0);
}

TEST_F(WiringTest, SkippedBreakCreditsNobody) {
    launch();
    Settings::setActiveTaskID(platform.preferences, addTask("Write"));
    beginBreak();
    engine().skipCurrentBreak();
    settle();
    EXPECT_EQ(tasks().at(0).completedBreaks, 0);
}

TEST_F(WiringTest, WithoutAnActiveTaskNoneIsCredited) {
    launch();
    addTask("Write");
    beginBreak();
    tickAfter(20);
    EXPECT_EQ(tasks().at(0).completedBreaks, 0);
}

TEST_F(WiringTest, CompletedTaskThatIsStillActiveIsCredited) {
    launch();
    const TaskID task = addTask("Write");
    Settings::setActiveTaskID(platform.preferences, task);
    delegate().store()->setTaskCompleted(task, true, platform.clock.now(), {});
    beginBreak();
    tickAfter(20);
    EXPECT_EQ(tasks().at(0).completedBreaks, 1);
}

TEST_F(WiringTest, PauseWritesWhatIsPending) {
    launch();
    ticks(6);
    EXPECT_DOUBLE_EQ(summary(at("00:00:00")).activeSeconds, 0);
    engine().pause(PauseReason::manual);
    settle();
    EXPECT_DOUBLE_EQ(summary(at("00:00:00")).activeSeconds, 5);
}

TEST_F(WiringTest, QuitWritesWhatIsPendingBeforeItAnswers) {
    launch();
    ticks(6);
    bool mayEnd = false;
    delegate().applicationShouldTerminate([&mayEnd] { mayEnd = true; });
    platform.mainQueue.drain();
    EXPECT_FALSE(mayEnd);
    settle();
    EXPECT_TRUE(mayEnd);
    EXPECT_DOUBLE_EQ(summary(at("00:00:00")).activeSeconds, 5);
}

TEST_F(WiringTest, RelaunchOnTheSameDayResumesTheCountsAndTheScreenTime) {
    launch();
    ticks(6);
    beginBreak();
    tickAfter(20);
    delegate().applicationShouldTerminate([] {});
    settle();
    delegate().applicationWillTerminate();
    settle();
    relaunch();
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_DOUBLE_EQ(delegate().screenTime().todayActiveSeconds(), 5);
}

TEST_F(WiringTest, RolloverBeforeTheLaunchTaskIsDoneIsATaskOfItsOwn) {
    platform.clock.set(at("23:59:59"));
    delegate().applicationDidFinishLaunching();
    platform.clock.set(at("2026-03-10 00:00:00"));
    platform.ticker.fire();
    settle();
    EXPECT_EQ(engine().rollover().currentDayStart(), at("2026-03-10 00:00:00"));
    EXPECT_EQ(platform.preferences.date("lastPrunedDayStart"), at("2026-03-10 00:00:00"));
}

TEST_F(WiringTest, TimerGoesOnWhileEveryOperationFails) {
    storeConfiguration.beforeOperation = [] { throw std::runtime_error("disk gone"); };
    launch();
    beginBreak();
    tickAfter(20);
    EXPECT_EQ(state(), "working");
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
    EXPECT_NE(happened().find("log Store: recordBreak failed: disk gone"), std::string::npos);
}

} // namespace
} // namespace kestrelfen
