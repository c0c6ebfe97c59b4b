#include "ui/TasksView/TaskList.hpp"

#include "core/BreakEngine.hpp"
#include "core/Settings.hpp"
#include "platform/ports/Clock.hpp"
#include "store/KestrelfenStore.hpp"
#include "store/TrimmedTitle.hpp"

#include <algorithm>

namespace kestrelfen {

TaskList::TaskList(const Platform& platform, BreakEngine& engine, KestrelfenStore* store)
    : platform_(platform), engine_(engine), store_(store) {}

std::size_t TaskList::completedCount() const {
    return static_cast<std::size_t>(
        std::count_if(tasks().begin(), tasks().end(),
                      [](const TaskSummary& task) { return task.completedAt.has_value(); }));
}

void TaskList::load() {
    if (!store_) {
        hasLoaded_.set(true);
        return;
    }
    store_->tasks(lifeline_.guard([this](std::vector<TaskSummary> tasks) { show(std::move(tasks)); }));
}

void TaskList::show(std::vector<TaskSummary> tasks) {
    tasks_.set(std::move(tasks));
    if (const TaskSummary* const task = openTask(Settings::activeTaskID(platform_.preferences))) {
        setActiveHere(task);
    } else {
        choose(nullptr);
    }
    hasLoaded_.set(true);
}

const TaskSummary* TaskList::openTask(std::optional<TaskID> id) const {
    const auto found = std::find_if(tasks().begin(), tasks().end(), [id](const TaskSummary& task) {
        return task.id == id && !task.completedAt;
    });
    return found == tasks().end() ? nullptr : &*found;
}

void TaskList::setActiveHere(const TaskSummary* task) {
    activeTaskID_.set(task ? std::optional(task->id) : std::nullopt);
    engine_.setActiveTaskTitle(task ? std::optional(task->title) : std::nullopt);
}

void TaskList::choose(const TaskSummary* task) {
    Settings::setActiveTaskID(platform_.preferences, task ? std::optional(task->id) : std::nullopt);
    setActiveHere(task);
}

void TaskList::forgetIfActive(TaskID id) {
    if (activeTaskID() == id) {
        choose(nullptr);
    }
}

void TaskList::add() {
    const std::string title = trimmedTitle(newTitle());
    if (title.empty()) {
        return;
    }
    setNewTitle({});
    if (!store_) {
        load();
        return;
    }
    const NewTask task{.title = title, .notes = {}, .dueOn = {}, .now = platform_.clock.now()};
    store_->createTask(task, lifeline_.guard([this](const std::optional<TaskSummary>&) { load(); }));
}

void TaskList::setActive(const TaskSummary& task) {
    if (task.completedAt) {
        return;
    }
    choose(activeTaskID() == task.id ? nullptr : &task);
}

void TaskList::toggle(const TaskSummary& task) {
    if (!store_) {
        return;
    }
    const bool completed = !task.completedAt;
    store_->setTaskCompleted(task.id, completed, platform_.clock.now(),
                             lifeline_.guard([this, id = task.id, completed] {
                                 if (completed) {
                                     forgetIfActive(id);
                                 }
                                 load();
                             }));
}

void TaskList::remove(const TaskSummary& task) {
    if (!store_) {
        return;
    }
    store_->deleteTask(task.id, lifeline_.guard([this, id = task.id] {
        forgetIfActive(id);
        load();
    }));
}

void TaskList::clearCompleted() {
    if (store_) {
        store_->deleteCompletedTasks(lifeline_.guard([this](std::int64_t) { load(); }));
    }
}

void TaskList::confirmDeletion() {
    if (const auto task = pendingDeletion()) {
        setPendingDeletion(std::nullopt);
        remove(*task);
    }
}

void TaskList::confirmClearing() {
    setConfirmClearCompleted(false);
    clearCompleted();
}

} // namespace kestrelfen
