#pragma once

#include "core/BreakHistory.hpp"
#include "store/ActiveTimeEntry.hpp"
#include "store/HistoryEntry.hpp"
#include "store/TaskSummary.hpp"
#include "store/UsageSummaries.hpp"
#include "store/WebsiteTimeEntry.hpp"

#include <string>
#include <vector>

namespace kestrelfen {

/// What the store has to answer, by lists in memory and the plainest code that does it.
class StoreOracle {
  public:
    DaySummary recordBreak(const BreakEntry& entry);
    void recordPause(const PauseEntry& entry);
    void addActiveTime(const ActiveTimeEntry& entry);
    void addWebsiteTime(const WebsiteTimeEntry& entry);

    DaySummary summary(Date dayStart) const;
    std::vector<DaySummary> summaries(Date since) const;
    std::vector<AppUsageSummary> appUsage(Date dayStart, std::int64_t limit) const;
    std::vector<WebsiteUsageSummary> websiteUsage(Date dayStart, std::int64_t limit) const;
    /// In no order that matters among equal seconds.
    std::vector<AppTotal> appTotals(Date since) const;
    std::vector<WebsiteTotal> websiteTotals(Date since) const;
    double longestStretch(Date dayStart, Date now) const;
    std::vector<HistoryEntry> history(Date since, std::int64_t limit) const;
    std::int64_t dayRecordCount() const { return static_cast<std::int64_t>(days_.size()); }

    std::int64_t pruneHistory(Date before);
    std::int64_t deleteAllHistory();

    std::vector<TaskSummary> tasks() const;
    std::optional<TaskSummary> createTask(const NewTask& task);
    void updateTask(TaskID id, const TaskChanges& changes);
    void setTaskCompleted(TaskID id, bool completed, Date now);
    void creditBreak(TaskID id);
    void reorderTasks(const std::vector<TaskID>& ids);
    void deleteTask(TaskID id);
    std::int64_t deleteCompletedTasks();

  private:
    struct Break {
        std::int64_t id;
        BreakEntry entry;
    };

    struct Pause {
        std::int64_t id;
        PauseEntry entry;
    };

    struct Day {
        Date startOfDay;
        std::int64_t breaksCompleted = 0;
        std::int64_t breaksSkipped = 0;
        double activeSeconds = 0;
        double pausedSeconds = 0;
        std::vector<Break> breaks = {};
        std::vector<Pause> pauses = {};
        std::vector<AppUsageSummary> apps = {};
        std::vector<WebsiteUsageSummary> sites = {};
    };

    Day& findOrMakeDay(Date dayStart);
    const Day* findDay(Date dayStart) const;
    TaskSummary* findTask(TaskID id);
    static DaySummary summaryOf(const Day& day);

    std::vector<Day> days_;
    std::vector<TaskSummary> tasks_;
    std::int64_t lastBreakID_ = 0;
    std::int64_t lastPauseID_ = 0;
    TaskID lastTaskID_ = 0;
};

} // namespace kestrelfen
