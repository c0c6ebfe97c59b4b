#include "ui/TasksView/TasksContent.hpp"

#include "ui/TasksView/TaskList.hpp"

namespace kestrelfen {

namespace {

constexpr double completedOpacity = 0.55;

} // namespace

TaskRow TaskRow::of(const TaskSummary& task, std::optional<TaskID> activeTask) {
    TaskRow row;
    row.id = task.id;
    row.title = task.title;
    row.isCompleted = task.completedAt.has_value();
    row.isActive = activeTask == task.id;
    row.opacity = row.isCompleted ? completedOpacity : 1.0;
    row.canBeChosen = !row.isCompleted;
    row.hasActiveBadge = row.isActive && !row.isCompleted;
    if (task.completedBreaks >= 1) {
        row.credits = translatedCount(task.completedBreaks, "%1 interval", "%1 intervals");
    }
    if (!row.isCompleted) {
        row.activeItem = row.isActive ? translated("Clear Active Task") : translated("Make Active");
    }
    row.completedItem = row.isCompleted ? translated("Mark as Open") : translated("Mark Complete");
    return row;
}

TasksContent TasksContent::of(const TaskList& list) {
    const auto completed = static_cast<std::int64_t>(list.completedCount());
    TasksContent content;
    for (const TaskSummary& task : list.tasks()) {
        content.rows.push_back(TaskRow::of(task, list.activeTaskID()));
    }
    content.isEmpty = content.rows.empty();
    content.doneText =
        translated("%1 of %2 done", {std::to_string(completed), std::to_string(content.rows.size())});
    content.canClearCompleted = completed > 0;
    if (list.pendingDeletion()) {
        content.deleteQuestion = TaskQuestion{translated("Delete task?")};
    }
    if (list.confirmClearCompleted()) {
        content.clearQuestion =
            TaskQuestion{translatedCount(completed, "Delete %1 completed task", "Delete %1 completed tasks")};
    }
    return content;
}

} // namespace kestrelfen
