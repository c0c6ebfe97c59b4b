#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"
#include "store/TaskSummary.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace kestrelfen {

class BreakEngine;
class KestrelfenStore;

/// The active task as the popover shows it; the engine hears its title. Main thread only; what the store has
/// to answer comes later, and not at all once this has ended.
class ActiveTask {
  public:
    /// `store` is null when history is unavailable.
    ActiveTask(const Platform& platform, BreakEngine& engine, KestrelfenStore* store);

    const std::optional<TaskSummary>& task() const { return task_.get(); }

    /// Reads the task anew, when the popover is first shown and whenever a break has been completed. The
    /// answer to an earlier reading that is still under way is dropped.
    void load();

    /// Loads whenever the number of completed breaks changes, from now on.
    void followBreaks();
    void unfollowBreaks() { breaks_.cancel(); }

    /// Tells of every real change of the task.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return task_.observe(std::move(changed));
    }

  private:
    void engineChanged();
    void take(TaskID wanted, const std::vector<TaskSummary>& tasks);
    void show(std::optional<TaskSummary> task);

    const Platform platform_;
    BreakEngine& engine_;
    KestrelfenStore* const store_;
    Observers changes_;
    Property<std::optional<TaskSummary>> task_{changes_};
    /// Counts the readings.
    int run_ = 0;
    std::int64_t completed_ = 0;
    Subscription breaks_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
