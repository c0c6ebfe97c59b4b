#include "StoreViewTest.hpp"
#include "core/Settings.hpp"
#include "ui/TasksView/TaskList.hpp"
#include "ui/TasksView/TasksContent.hpp"

namespace kestrelfen {
namespace {

TaskSummary task(std::int64_t credits = 0) {
    return {.id = 7,
            .title = "Write",
            .notes = {},
            .createdAt = {},
            .completedAt = {},
            .dueOn = {},
            .completedBreaks = credits};
}

TaskSummary doneTask() {
    TaskSummary done = task(1);
    done.completedAt = at("09:00:00");
    return done;
}

TEST(TasksContent, WordsThatNeverChange) {
    EXPECT_EQ(TasksContent::prompt, "Add a task — return to save, escape to cancel");
    EXPECT_EQ(TasksContent::emptyTitle, "No tasks yet");
    EXPECT_EQ(TasksContent::emptyText,
              "Add one above. Mark a task active and it earns credit each time a work interval finishes.");
    EXPECT_EQ(TasksContent::clearItem, "Clear Completed…");
    EXPECT_EQ(TasksContent::purpose, "no reminders, recurrence, subtasks, tags or priorities — on purpose");
    EXPECT_EQ(TaskRow::gripTip, "Drag to reorder");
    EXPECT_EQ(TaskRow::activeBadge, "Active");
    EXPECT_EQ(TaskRow::deleteItem, "Delete");
}

TEST(TaskRow, OfAnOpenTask) {
    const TaskRow row = TaskRow::of(task(), {});
    EXPECT_EQ(row.title, "Write");
    EXPECT_FALSE(row.isCompleted);
    EXPECT_FALSE(row.isActive);
    EXPECT_EQ(row.opacity, 1);
    EXPECT_TRUE(row.canBeChosen);
    EXPECT_FALSE(row.hasActiveBadge);
    EXPECT_EQ(row.credits, std::nullopt);
    EXPECT_EQ(row.activeItem, "Make Active");
    EXPECT_EQ(row.completedItem, "Mark Complete");
}

TEST(TaskRow, OfTheActiveTask) {
    const TaskRow row = TaskRow::of(task(2), 7);
    EXPECT_TRUE(row.isActive);
    EXPECT_TRUE(row.hasActiveBadge);
    EXPECT_EQ(row.credits, "2 intervals");
    EXPECT_EQ(row.activeItem, "Clear Active Task");
    EXPECT_FALSE(TaskRow::of(task(), 8).isActive);
}

TEST(TaskRow, OfACompletedTask) {
    const TaskRow row = TaskRow::of(doneTask(), 7);
    EXPECT_TRUE(row.isCompleted);
    EXPECT_EQ(row.opacity, 0.55);
    EXPECT_FALSE(row.canBeChosen);
    EXPECT_FALSE(row.hasActiveBadge);
    EXPECT_EQ(row.credits, "1 interval");
    EXPECT_EQ(row.activeItem, std::nullopt);
    EXPECT_EQ(row.completedItem, "Mark as Open");
}

class TasksContentTest : public StoreViewTest {
  protected:
    TasksContent content() {
        list_.load();
        settleAll();
        return TasksContent::of(list_);
    }

    TaskList list_{platform.ports(), engine(), store.get()};
};

TEST_F(TasksContentTest, Empty) {
    EXPECT_TRUE(content().isEmpty);
    EXPECT_EQ(content().doneText, "0 of 0 done");
    EXPECT_FALSE(content().canClearCompleted);
}

TEST_F(TasksContentTest, RowsStandInTheStoresOrder) {
    const auto write = addTask("Write");
    finish(addTask("Read"));
    Settings::setActiveTaskID(platform.preferences, write);
    const TasksContent shown = content();
    ASSERT_EQ(shown.rows.size(), 2U);
    EXPECT_FALSE(shown.isEmpty);
    EXPECT_TRUE(shown.rows[0].hasActiveBadge);
    EXPECT_EQ(shown.rows[1].title, "Read");
    EXPECT_EQ(shown.doneText, "1 of 2 done");
    EXPECT_TRUE(shown.canClearCompleted);
}

TEST_F(TasksContentTest, DeletionAsks) {
    addTask("Write");
    EXPECT_EQ(content().deleteQuestion, std::nullopt);
    list_.setPendingDeletion(list_.tasks().at(0));
    EXPECT_EQ(content().deleteQuestion, TaskQuestion{"Delete task?"});
    EXPECT_EQ(content().clearQuestion, std::nullopt);
}

TEST_F(TasksContentTest, ClearingAsksWithTheNumber) {
    finish(addTask("Write"));
    EXPECT_EQ(content().clearQuestion, std::nullopt);
    list_.setConfirmClearCompleted(true);
    EXPECT_EQ(content().clearQuestion, TaskQuestion{"Delete 1 completed task"});
    finish(addTask("Read"));
    EXPECT_EQ(content().clearQuestion, TaskQuestion{"Delete 2 completed tasks"});
    EXPECT_EQ(TaskQuestion::message, "This can't be undone.");
}

} // namespace
} // namespace kestrelfen
