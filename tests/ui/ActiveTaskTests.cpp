#include "StoreViewTest.hpp"
#include "core/Settings.hpp"
#include "ui/MenuBarView/ActiveTask.hpp"

namespace kestrelfen {
namespace {

using Title = std::optional<std::string>;

class ActiveTaskTest : public StoreViewTest {
  protected:
    ActiveTask& active() {
        if (!active_) {
            active_ = std::make_unique<ActiveTask>(platform.ports(), engine(), store.get());
        }
        return *active_;
    }

    /// The title shown once all has come to rest.
    Title loadedTitle() {
        active().load();
        return settledTitle();
    }

    Title settledTitle() {
        settleAll();
        const auto& task = active().task();
        return task ? Title(task->title) : std::nullopt;
    }

    void choose(std::optional<std::int64_t> id) { Settings::setActiveTaskID(platform.preferences, id); }

    void completeBreak() {
        engine().beginBreak(now());
        engine().completeBreak(now());
    }

    std::unique_ptr<ActiveTask> active_;
};

TEST_F(ActiveTaskTest, IsEmptyAtFirst) {
    choose(addTask("a"));
    EXPECT_EQ(active().task(), std::nullopt);
}

TEST_F(ActiveTaskTest, LoadTakesTheTaskOfTheKeptIdentifier) {
    addTask("a");
    choose(addTask("b"));
    EXPECT_EQ(loadedTitle(), "b");
    EXPECT_EQ(engine().activeTaskTitle(), Title("b"));
}

TEST_F(ActiveTaskTest, AFinishedTaskIsShownToo) {
    const auto id = addTask("a");
    finish(id);
    choose(id);
    EXPECT_EQ(loadedTitle(), "a");
}

TEST_F(ActiveTaskTest, WithoutAStoreItIsEmptyAndTheEngineKeepsItsTitle) {
    store.reset();
    choose(5);
    engine().setActiveTaskTitle("kept");
    EXPECT_EQ(loadedTitle(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), Title("kept"));
}

TEST_F(ActiveTaskTest, WithoutAnIdentifierTheEnginesTitleIsCleared) {
    choose(addTask("a"));
    EXPECT_EQ(loadedTitle(), "a");
    choose(std::nullopt);
    EXPECT_EQ(loadedTitle(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(ActiveTaskTest, AnIdentifierThatNoTaskHasClearsTheTitleAndIsKept) {
    addTask("a");
    choose(77);
    engine().setActiveTaskTitle("gone");
    EXPECT_EQ(loadedTitle(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
    EXPECT_EQ(chosen(), 77);
}

TEST_F(ActiveTaskTest, AStoreThatFailsReadsAsNone) {
    choose(addTask("a"));
    EXPECT_EQ(loadedTitle(), "a");
    setFailing(true);
    EXPECT_EQ(loadedTitle(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(ActiveTaskTest, TheStoresAnswerTakesEffectLater) {
    choose(addTask("a"));
    active().load();
    EXPECT_EQ(active().task(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
    EXPECT_EQ(settledTitle(), "a");
}

TEST_F(ActiveTaskTest, AnEarlierReadingsAnswerIsDropped) {
    choose(addTask("a"));
    active().load();
    choose(std::nullopt);
    EXPECT_EQ(loadedTitle(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(ActiveTaskTest, AnAnswerAfterItsEndIsDropped) {
    choose(addTask("a"));
    active().load();
    active_.reset();
    settleAll();
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(ActiveTaskTest, ACompletedBreakReadsAnew) {
    engine().start();
    const auto id = addTask("a");
    choose(id);
    active().followBreaks();
    EXPECT_EQ(settledTitle(), std::nullopt);
    completeBreak();
    EXPECT_EQ(settledTitle(), "a");
    store->creditBreak(id, {});
    settleAll();
    EXPECT_EQ(active().task().value().completedBreaks, 0);
    completeBreak();
    EXPECT_EQ(settledTitle(), "a");
    EXPECT_EQ(active().task().value().completedBreaks, 1);
}

TEST_F(ActiveTaskTest, ASkippedBreakReadsNothing) {
    engine().start();
    choose(addTask("a"));
    active().followBreaks();
    engine().beginBreak(now());
    wait(5);
    engine().skipCurrentBreak();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
    EXPECT_EQ(settledTitle(), std::nullopt);
}

TEST_F(ActiveTaskTest, TellsOfRealChangesOnly) {
    int changes = 0;
    choose(addTask("a"));
    const auto subscription = active().observe([&changes] { ++changes; });
    loadedTitle();
    loadedTitle();
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace kestrelfen
