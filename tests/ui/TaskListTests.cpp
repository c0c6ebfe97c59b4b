#include "StoreViewTest.hpp"
#include "core/Settings.hpp"
#include "ui/TasksView/TaskList.hpp"

namespace kestrelfen {
namespace {

using Title = std::optional<std::string>;

class TaskListTest : public StoreViewTest {
  protected:
    TaskList& list() {
        if (!list_) {
            list_ = std::make_unique<TaskList>(platform.ports(), engine(), store.get());
        }
        return *list_;
    }

    TaskList& loaded() {
        list().load();
        settleAll();
        return list();
    }

    void addThroughList(const std::string& title) {
        list().setNewTitle(title);
        list().add();
        settleAll();
    }

    std::string titles() {
        std::string text;
        for (const TaskSummary& task : list().tasks()) {
            text += (task.completedAt ? "(" + task.title + ")" : task.title) + " ";
        }
        return text;
    }

    void choose(std::int64_t id) { Settings::setActiveTaskID(platform.preferences, id); }

    std::unique_ptr<TaskList> list_;
};

TEST_F(TaskListTest, HasNothingBeforeItLoads) {
    addTask("a");
    EXPECT_FALSE(list().hasLoaded());
    EXPECT_EQ(titles(), "");
    EXPECT_EQ(list().activeTaskID(), std::nullopt);
}

TEST_F(TaskListTest, LoadBringsTheStoresOrderAndTheActiveTask) {
    const auto a = addTask("a");
    addTask("b");
    choose(a);
    EXPECT_TRUE(loaded().hasLoaded());
    EXPECT_EQ(titles(), "a b ");
    EXPECT_EQ(list().activeTaskID(), a);
    EXPECT_EQ(engine().activeTaskTitle(), Title("a"));
    EXPECT_EQ(chosen(), a);
}

TEST_F(TaskListTest, LoadForgetsATaskThatIsGone) {
    addTask("a");
    choose(77);
    engine().setActiveTaskTitle("gone");
    EXPECT_EQ(loaded().activeTaskID(), std::nullopt);
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(TaskListTest, LoadForgetsATaskThatIsDone) {
    const auto a = addTask("a");
    finish(a);
    choose(a);
    EXPECT_EQ(loaded().activeTaskID(), std::nullopt);
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(TaskListTest, LoadThatFailsReadsAsEmptyAndForgets) {
    choose(addTask("a"));
    loaded();
    setFailing(true);
    EXPECT_EQ(loaded().tasks().size(), 0U);
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(TaskListTest, WithoutAStoreItLoadsNothingAndForgetsNothing) {
    store.reset();
    choose(5);
    EXPECT_TRUE(loaded().hasLoaded());
    addThroughList("a");
    EXPECT_EQ(list().newTitle(), "");
    EXPECT_EQ(titles(), "");
    EXPECT_EQ(chosen(), 5);
}

TEST_F(TaskListTest, AddTrimsAndEmptiesTheComposer) {
    loaded();
    addThroughList(" \t Read it\n");
    EXPECT_EQ(list().newTitle(), "");
    EXPECT_EQ(titles(), "Read it ");
    const TaskSummary task = storedTasks().at(0);
    EXPECT_EQ(task.createdAt, now());
    EXPECT_EQ(task.notes, "");
    EXPECT_EQ(task.dueOn, std::nullopt);
    EXPECT_EQ(task.estimatedBreaks, 0);
}

TEST_F(TaskListTest, AddOfABlankTitleLeavesTheText) {
    addThroughList(" \u00a0 ");
    EXPECT_EQ(list().newTitle(), " \u00a0 ");
    EXPECT_FALSE(list().hasLoaded());
    EXPECT_EQ(storedTasks().size(), 0U);
}

TEST_F(TaskListTest, CancellingEmptiesTheComposerAndAddsNothing) {
    list().setNewTitle("Read");
    list().cancelComposing();
    settleAll();
    EXPECT_EQ(list().newTitle(), "");
    EXPECT_EQ(storedTasks().size(), 0U);
}

TEST_F(TaskListTest, ChoosingAgainClears) {
    const auto a = addTask("a");
    const auto b = addTask("b");
    loaded().setActive(list().tasks().at(0));
    EXPECT_EQ(chosen(), a);
    EXPECT_EQ(engine().activeTaskTitle(), Title("a"));
    list().setActive(list().tasks().at(1));
    EXPECT_EQ(chosen(), b);
    EXPECT_EQ(engine().activeTaskTitle(), Title("b"));
    list().setActive(list().tasks().at(1));
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_EQ(list().activeTaskID(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(TaskListTest, FinishedTaskCannotBeChosen) {
    finish(addTask("a"));
    loaded().setActive(list().tasks().at(0));
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(TaskListTest, TogglingTheActiveTaskEndsTheChoiceForGood) {
    choose(addTask("a"));
    loaded().toggle(TaskSummary(list().tasks().at(0)));
    settleAll();
    EXPECT_EQ(titles(), "(a) ");
    EXPECT_EQ(list().tasks().at(0).completedAt, now());
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
    list().toggle(TaskSummary(list().tasks().at(0)));
    settleAll();
    EXPECT_EQ(titles(), "a ");
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(TaskListTest, TogglingTakesEffectWhenTheStoreHasAnswered) {
    choose(addTask("a"));
    loaded().toggle(TaskSummary(list().tasks().at(0)));
    EXPECT_EQ(titles(), "a ");
    EXPECT_TRUE(chosen().has_value());
    settleAll();
    EXPECT_FALSE(chosen().has_value());
}

TEST_F(TaskListTest, TogglingAnotherTaskKeepsTheChoice) {
    const auto a = addTask("a");
    addTask("b");
    choose(a);
    loaded().toggle(TaskSummary(list().tasks().at(1)));
    settleAll();
    EXPECT_EQ(titles(), "a (b) ");
    EXPECT_EQ(chosen(), a);
}

TEST_F(TaskListTest, DeletionIsAskedFor) {
    choose(addTask("a"));
    const TaskSummary task = loaded().tasks().at(0);
    list().setPendingDeletion(task);
    EXPECT_EQ(list().pendingDeletion(), task);
    list().setPendingDeletion(std::nullopt);
    list().confirmDeletion();
    settleAll();
    EXPECT_EQ(titles(), "a ");
    list().setPendingDeletion(task);
    list().confirmDeletion();
    EXPECT_EQ(list().pendingDeletion(), std::nullopt);
    settleAll();
    EXPECT_EQ(titles(), "");
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_EQ(engine().activeTaskTitle(), std::nullopt);
}

TEST_F(TaskListTest, DeletionThatFailsLeavesTheTask) {
    choose(addTask("a"));
    const TaskSummary task = loaded().tasks().at(0);
    setFailing(true);
    list().remove(task);
    settleAll();
    setFailing(false);
    EXPECT_EQ(storedTasks().size(), 1U);
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(TaskListTest, ClearingTakesTheFinishedOnes) {
    finish(addTask("a"));
    addTask("b");
    finish(addTask("c"));
    EXPECT_EQ(loaded().completedCount(), 2U);
    list().setConfirmClearCompleted(true);
    EXPECT_TRUE(list().confirmClearCompleted());
    list().confirmClearing();
    EXPECT_FALSE(list().confirmClearCompleted());
    settleAll();
    EXPECT_EQ(titles(), "b ");
    EXPECT_EQ(list().completedCount(), 0U);
}

TEST_F(TaskListTest, AnswersForAListThatHasGoneAreDropped) {
    const auto a = addTask("a");
    choose(77);
    list().load();
    list_.reset();
    settleAll();
    EXPECT_EQ(chosen(), 77);
    choose(a);
    loaded().toggle(TaskSummary(list().tasks().at(0)));
    list_.reset();
    settleAll();
    EXPECT_EQ(chosen(), a);
    EXPECT_TRUE(storedTasks().at(0).completedAt.has_value());
}

TEST_F(TaskListTest, TellsOfRealChangesOnly) {
    int changes = 0;
    const auto subscription = list().observe([&changes] { ++changes; });
    loaded();
    EXPECT_EQ(changes, 1);
    loaded();
    EXPECT_EQ(changes, 1);
    list().setNewTitle("a");
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace kestrelfen
