#include "store/KestrelfenStore.hpp"
#include "store/StorePerform.hpp"

namespace kestrelfen {

namespace {

constexpr std::string_view mutation = "task mutation";

} // namespace

void KestrelfenStore::tasks(Completion<std::vector<TaskSummary>> completion) {
    perform(
        "tasks", std::vector<TaskSummary>(), [](HistoryDatabase& database) { return database.tasks(); },
        std::move(completion));
}

void KestrelfenStore::createTask(NewTask task, Completion<std::optional<TaskSummary>> completion) {
    perform(
        "createTask", std::optional<TaskSummary>(),
        [task = std::move(task)](HistoryDatabase& database) { return database.createTask(task); },
        std::move(completion));
}

void KestrelfenStore::updateTask(TaskID id, TaskChanges changes, Done completion) {
    perform(
        mutation,
        [id, changes = std::move(changes)](HistoryDatabase& database) { database.updateTask(id, changes); },
        std::move(completion));
}

void KestrelfenStore::setTaskCompleted(TaskID id, bool completed, Date now, Done completion) {
    perform(
        mutation,
        [id, completed, now](HistoryDatabase& database) { database.setTaskCompleted(id, completed, now); },
        std::move(completion));
}

void KestrelfenStore::creditBreak(TaskID id, Done completion) {
    perform(
        mutation, [id](HistoryDatabase& database) { database.creditBreak(id); }, std::move(completion));
}

void KestrelfenStore::reorderTasks(std::vector<TaskID> ids, Done completion) {
    perform(
        mutation, [ids = std::move(ids)](HistoryDatabase& database) { database.reorderTasks(ids); },
        std::move(completion));
}

void KestrelfenStore::deleteTask(TaskID id, Done completion) {
    perform(
        "deleteTask", [id](HistoryDatabase& database) { database.deleteTask(id); }, std::move(completion));
}

void KestrelfenStore::deleteCompletedTasks(Completion<std::int64_t> completion) {
    perform(
        "deleteCompletedTasks", std::int64_t{0},
        [log = logger()](HistoryDatabase& database) {
            const std::int64_t count = database.deleteCompletedTasks();
            log.info("cleared " + std::to_string(count) + " completed task(s)");
            return count;
        },
        std::move(completion));
}

} // namespace kestrelfen
