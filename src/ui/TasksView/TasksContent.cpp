#include "ui/TasksView/TasksContent.hpp"

#include "ui/Plural.hpp"
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
        row.credits = counted(task.completedBreaks, "interval");
    }
    if (!row.isCompleted) {
        row.activeItem = row.isActive ? "Clear Active Task" : "Make Active";
    }
    row.completedItem = row.isCompleted ? "Mark as Open" : "Mark Complete";
    return row;
}

TasksContent TasksContent::of(const TaskList& list) {
    const auto completed = static_cast<std::int64_t>(list.completedCount());
    TasksContent content;
    for (const TaskSummary& task : list.tasks()) {
        content.rows.push_back(TaskRow::of(task, list.activeTaskID()));
    }
    content.isEmpty = content.rows.empty();
    content.doneText = std::to_string(completed) + " of " + std::to_string(content.rows.size()) + " done";
    content.canClearCompleted = completed > 0;
    if (list.pendingDeletion()) {
        content.deleteQuestion = TaskQuestion{"Delete task?"};
    }
    if (list.confirmClearCompleted()) {
        content.clearQuestion = TaskQuestion{"Delete " + counted(completed, "completed task")};
    }
    return content;
}

} // namespace kestrelfen
