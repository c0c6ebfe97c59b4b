#pragma once

#include "base/Translated.hpp"
#include "store/TaskSummary.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

class TaskList;

/// A question before something is gone for good.
struct TaskQuestion {
    static constexpr std::string_view message = toTranslate("This can't be undone.");
    static constexpr std::string_view confirm = toTranslate("Delete");
    static constexpr std::string_view cancel = toTranslate("Cancel");

    std::string title;

    friend bool operator==(const TaskQuestion&, const TaskQuestion&) = default;
};

/// One line of the list of tasks.
struct TaskRow {
    static constexpr std::string_view gripTip = toTranslate("Drag to reorder");
    static constexpr std::string_view activeBadge = toTranslate("Active");
    static constexpr std::string_view deleteItem = toTranslate("Delete");

    TaskID id = 0;
    std::string title;
    bool isCompleted = false;
    bool isActive = false;
    /// Of the row as a whole.
    double opacity = 1;
    /// Whether a click on the row chooses it.
    bool canBeChosen = true;
    bool hasActiveBadge = false;
    /// How many intervals it was credited with, if any.
    std::optional<std::string> credits;
    /// The context menu's items above "Delete"; the first is missing from a completed task's.
    std::optional<std::string> activeItem;
    std::string completedItem;

    static TaskRow of(const TaskSummary& task, std::optional<TaskID> activeTask);

    friend bool operator==(const TaskRow&, const TaskRow&) = default;
};

/// Every text and flag of the tasks view at one moment.
struct TasksContent {
    static constexpr std::string_view prompt = toTranslate("Add a task — return to save, escape to cancel");
    static constexpr std::string_view emptyTitle = toTranslate("No tasks yet");
    static constexpr std::string_view emptyText = toTranslate(
        "Add one above. Mark a task active and it earns credit each time a work interval finishes.");
    static constexpr std::string_view clearItem = toTranslate("Clear Completed…");
    static constexpr std::string_view purpose =
        toTranslate("no reminders, recurrence, subtasks, tags or priorities — on purpose");

    std::vector<TaskRow> rows;
    /// The empty state stands in the list's place.
    bool isEmpty = true;
    /// "1 of 3 done".
    std::string doneText;
    bool canClearCompleted = false;
    std::optional<TaskQuestion> deleteQuestion;
    std::optional<TaskQuestion> clearQuestion;

    static TasksContent of(const TaskList& list);

    friend bool operator==(const TasksContent&, const TasksContent&) = default;
};

} // namespace kestrelfen
