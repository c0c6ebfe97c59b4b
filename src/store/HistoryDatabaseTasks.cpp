#include "store/HistoryDatabase.hpp"
#include "store/TrimmedTitle.hpp"

#include <algorithm>
#include <set>

namespace kestrelfen {

namespace {

TaskSummary taskSummary(const Query& row) {
    return {row.integer(0),      row.text(1),    row.text(2),    row.date(3),   row.optionalDate(4),
            row.optionalDate(5), row.integer(6), row.integer(7), row.integer(8)};
}

/// Absent where there is nothing to change: an empty title is none.
std::optional<std::string> newTitle(const TaskChanges& changes) {
    std::string title = trimmedTitle(changes.title.value_or(""));
    return title.empty() ? std::nullopt : std::optional(std::move(title));
}

} // namespace

std::vector<TaskSummary> HistoryDatabase::tasks() {
    beginReading();
    Query row = query("SELECT id, title, notes, createdAt, completedAt, dueOn, sortIndex, estimatedBreaks, "
                      "completedBreaks FROM TaskRecord ORDER BY completedAt IS NOT NULL, "
                      "CASE WHEN completedAt IS NULL THEN sortIndex END, completedAt DESC, id");
    std::vector<TaskSummary> result;
    while (row.next()) {
        result.push_back(taskSummary(row));
    }
    return result;
}

std::optional<TaskSummary> HistoryDatabase::createTask(const NewTask& task) {
    TaskSummary made;
    made.title = trimmedTitle(task.title);
    made.notes = task.notes;
    made.createdAt = task.now;
    made.dueOn = task.dueOn;
    made.estimatedBreaks = std::max<std::int64_t>(task.estimatedBreaks, 0);
    if (made.title.empty()) {
        return std::nullopt;
    }
    auto transaction = beginWriting();
    made.sortIndex = nextSortIndex();
    query("INSERT INTO TaskRecord (title, notes, createdAt, dueOn, sortIndex, estimatedBreaks) "
          "VALUES (?, ?, ?, ?, ?, ?)",
          made.title, made.notes, made.createdAt, made.dueOn, made.sortIndex, made.estimatedBreaks)
        .run();
    made.id = connection_.getLastInsertRowid();
    transaction.commit();
    return made;
}

std::int64_t HistoryDatabase::nextSortIndex() {
    Query row = query("SELECT sortIndex FROM TaskRecord ORDER BY sortIndex DESC LIMIT 1");
    return row.next() ? row.integer(0) + 1 : 0;
}

void HistoryDatabase::updateTask(TaskID id, const TaskChanges& changes) {
    std::optional<std::int64_t> estimate = changes.estimatedBreaks;
    if (estimate) {
        estimate = std::max<std::int64_t>(*estimate, 0);
    }
    mutateTask("UPDATE TaskRecord SET title = coalesce(?, title), notes = coalesce(?, notes), "
               "estimatedBreaks = coalesce(?, estimatedBreaks), dueOn = CASE WHEN ? THEN ? ELSE dueOn END "
               "WHERE id = ?",
               newTitle(changes), changes.notes, estimate, changes.dueOn.has_value(),
               changes.dueOn.value_or(std::nullopt), id);
}

void HistoryDatabase::setTaskCompleted(TaskID id, bool completed, Date now) {
    mutateTask("UPDATE TaskRecord SET completedAt = ? WHERE id = ?",
               completed ? std::optional(now) : std::nullopt, id);
}

void HistoryDatabase::creditBreak(TaskID id) {
    mutateTask("UPDATE TaskRecord SET completedBreaks = completedBreaks + 1 WHERE id = ?", id);
}

void HistoryDatabase::reorderTasks(const std::vector<TaskID>& ids) {
    auto transaction = beginWriting();
    std::vector<TaskID> others = taskIDs();
    std::set<TaskID> waiting(others.begin(), others.end());
    std::int64_t index = 0;
    const auto place = [&](TaskID id) {
        if (waiting.erase(id) > 0) {
            query("UPDATE TaskRecord SET sortIndex = ? WHERE id = ?", index++, id).run();
        }
    };
    std::for_each(ids.begin(), ids.end(), place);
    std::for_each(others.begin(), others.end(), place);
    transaction.commit();
}

std::vector<TaskID> HistoryDatabase::taskIDs() {
    Query row = query("SELECT id FROM TaskRecord ORDER BY sortIndex, id");
    std::vector<TaskID> result;
    while (row.next()) {
        result.push_back(row.integer(0));
    }
    return result;
}

void HistoryDatabase::deleteTask(TaskID id) {
    mutateTask("DELETE FROM TaskRecord WHERE id = ?", id);
}

std::int64_t HistoryDatabase::deleteCompletedTasks() {
    auto transaction = beginWriting();
    const std::int64_t count = query("DELETE FROM TaskRecord WHERE completedAt IS NOT NULL").run();
    transaction.commit();
    return count;
}

} // namespace kestrelfen
