#include "ui/MenuBarView/ActiveTask.hpp"

#include "core/BreakEngine.hpp"
#include "core/Settings.hpp"
#include "platform/ports/MainQueue.hpp"
#include "store/KestrelfenStore.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

ActiveTask::ActiveTask(const Platform& platform, BreakEngine& engine, KestrelfenStore* store)
    : platform_(platform), engine_(engine), store_(store) {}

void ActiveTask::followBreaks() {
    completed_ = engine_.breaksCompletedToday();
    breaks_ = engine_.observe([this] { engineChanged(); });
}

/// The engine may be amid a change of state, and what follows of it a turn later is the credit, which the
/// store is to be told of first.
void ActiveTask::engineChanged() {
    const std::int64_t before = std::exchange(completed_, engine_.breaksCompletedToday());
    if (completed_ != before) {
        platform_.mainQueue.post(
            lifeline_.guard([this] { platform_.mainQueue.post(lifeline_.guard([this] { load(); })); }));
    }
}

void ActiveTask::load() {
    const int run = ++run_;
    if (!store_) {
        task_.set(std::nullopt);
        return;
    }
    const auto wanted = Settings::activeTaskID(platform_.preferences);
    if (!wanted) {
        show(std::nullopt);
        return;
    }
    store_->tasks(lifeline_.guard([this, run, id = *wanted](const std::vector<TaskSummary>& tasks) {
        if (run == run_) {
            take(id, tasks);
        }
    }));
}

void ActiveTask::take(TaskID wanted, const std::vector<TaskSummary>& tasks) {
    const auto found = std::find_if(tasks.begin(), tasks.end(),
                                    [wanted](const TaskSummary& task) { return task.id == wanted; });
    show(found == tasks.end() ? std::nullopt : std::optional(*found));
}

void ActiveTask::show(std::optional<TaskSummary> task) {
    engine_.setActiveTaskTitle(task ? std::optional(task->title) : std::nullopt);
    task_.set(std::move(task));
}

} // namespace kestrelfen
