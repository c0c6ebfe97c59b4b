#include "ContentTest.hpp"
#include "core/Settings.hpp"
#include "ui/TasksView/TaskList.hpp"

namespace kestrelfen {
namespace {

/// The list of tasks of a program whose store could not be opened.
class TaskListWithoutStore : public ContentTest {
  protected:
    const TaskSummary task{
        .id = 7, .title = "Write", .notes = {}, .createdAt = now(), .completedAt = {}, .dueOn = {}};
    TaskList list{platform.ports(), engine(), nullptr};
};

TEST_F(TaskListWithoutStore, LoadsAnEmptyList) {
    EXPECT_FALSE(list.hasLoaded());
    list.load();
    EXPECT_TRUE(list.hasLoaded());
    EXPECT_TRUE(list.tasks().empty());
}

TEST_F(TaskListWithoutStore, AddingEmptiesTheFieldAndAddsNothing) {
    list.setNewTitle("Write");
    list.add();
    EXPECT_EQ(list.newTitle(), "");
    EXPECT_TRUE(list.tasks().empty());
}

TEST_F(TaskListWithoutStore, TogglingKeepsTheActiveTask) {
    list.setActive(task);
    list.toggle(task);
    EXPECT_EQ(list.activeTaskID(), task.id);
    EXPECT_EQ(Settings::activeTaskID(platform.preferences), task.id);
    EXPECT_EQ(engine().activeTaskTitle(), task.title);
}

TEST_F(TaskListWithoutStore, AConfirmedDeletionEndsTheQuestionAndKeepsTheActiveTask) {
    list.setActive(task);
    list.setPendingDeletion(task);
    list.confirmDeletion();
    EXPECT_EQ(list.pendingDeletion(), std::nullopt);
    EXPECT_EQ(list.activeTaskID(), task.id);
}

TEST_F(TaskListWithoutStore, AConfirmedClearingEndsTheQuestion) {
    list.setConfirmClearCompleted(true);
    list.confirmClearing();
    EXPECT_FALSE(list.confirmClearCompleted());
    EXPECT_FALSE(list.hasLoaded());
}

} // namespace
} // namespace kestrelfen
