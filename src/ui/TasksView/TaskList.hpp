#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"
#include "store/TaskSummary.hpp"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class BreakEngine;
class KestrelfenStore;

/// The list of tasks as it stands on the screen, and what its controls do. It owns the choice of the active
/// task. Main thread only; what needs the store takes effect when the store has answered, unless the list has
/// gone by then.
class TaskList {
  public:
    /// `store` is null when history is unavailable.
    TaskList(const Platform& platform, BreakEngine& engine, KestrelfenStore* store);

    /// In the store's order.
    const std::vector<TaskSummary>& tasks() const { return tasks_.get(); }
    std::optional<TaskID> activeTaskID() const { return activeTaskID_.get(); }
    bool hasLoaded() const { return hasLoaded_.get(); }
    std::size_t completedCount() const;

    /// The composer's text.
    const std::string& newTitle() const { return newTitle_.get(); }
    void setNewTitle(std::string title) { newTitle_.set(std::move(title)); }

    /// The task that the person is being asked about before it is deleted.
    const std::optional<TaskSummary>& pendingDeletion() const { return pendingDeletion_.get(); }
    void setPendingDeletion(std::optional<TaskSummary> task) { pendingDeletion_.set(std::move(task)); }

    /// Whether the person is being asked before all completed tasks are deleted.
    bool confirmClearCompleted() const { return confirmClearCompleted_.get(); }
    void setConfirmClearCompleted(bool asked) { confirmClearCompleted_.set(asked); }

    /// Reads the tasks anew, when the list is first shown and whenever a break has been completed. Forgets an
    /// active task that is not among the open ones.
    void load();

    /// Makes a task of the composer's text, unless that is blank.
    void add();
    /// Empties the composer.
    void cancelComposing() { setNewTitle({}); }

    /// Makes an open task the active one, or none if it is that already.
    void setActive(const TaskSummary& task);
    /// Completes the task, or opens it again.
    void toggle(const TaskSummary& task);
    void remove(const TaskSummary& task);
    void clearCompleted();

    /// What was asked is to be done.
    void confirmDeletion();
    void confirmClearing();

    /// Tells of every real change of all that can be read here.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    void show(std::vector<TaskSummary> tasks);
    const TaskSummary* openTask(std::optional<TaskID> id) const;
    /// Null for none: in this list and in the engine.
    void setActiveHere(const TaskSummary* task);
    /// The same, and for good.
    void choose(const TaskSummary* task);
    void forgetIfActive(TaskID id);

    const Platform platform_;
    BreakEngine& engine_;
    KestrelfenStore* const store_;
    Observers changes_;
    Property<std::vector<TaskSummary>> tasks_{changes_};
    Property<std::string> newTitle_{changes_};
    Property<std::optional<TaskID>> activeTaskID_{changes_};
    Property<std::optional<TaskSummary>> pendingDeletion_{changes_};
    Property<bool> confirmClearCompleted_{changes_};
    Property<bool> hasLoaded_{changes_};
    Lifeline lifeline_;
};

} // namespace kestrelfen
