#pragma once

#include "core/BreakHistory.hpp"
#include "platform/ports/Log.hpp"
#include "store/ActiveTimeEntry.hpp"
#include "store/HistoryEntry.hpp"
#include "store/StoreConfiguration.hpp"
#include "store/TaskSummary.hpp"
#include "store/UsageSummaries.hpp"
#include "store/WebsiteTimeEntry.hpp"

#include <memory>
#include <string_view>
#include <vector>

namespace kestrelfen {

class HistoryDatabase;
class MainQueue;
class SerialExecutor;

/// The history, asked from the main thread: each call queues one job on the executor, jobs run in the order
/// of the calls, and completions run on the main queue, also after the store itself has ended. A completion
/// may be empty. A failing operation logs its line and answers as if there were no data.
class KestrelfenStore final : public BreakHistory {
  public:
    /// What the store works with. All outlive the store and its jobs.
    struct Services {
        SerialExecutor& executor;
        MainQueue& mainQueue;
        Log& log;
    };

    template <typename Result>
    using Completion = std::function<void(Result)>;
    using Done = std::function<void()>;

    /// Opens the file, or makes it. Null, with one line in the log, when that fails; the file is then as it
    /// was.
    static std::unique_ptr<KestrelfenStore> make(const StoreConfiguration& configuration,
                                                 const Services& services);
    ~KestrelfenStore() override;

    void recordBreak(BreakEntry entry) override { recordBreak(std::move(entry), {}); }
    void recordBreak(BreakEntry entry, Completion<DaySummary> completion);
    void recordPause(PauseEntry entry) override { recordPause(entry, {}); }
    void recordPause(PauseEntry entry, Done completion);
    void addActiveTime(ActiveTimeEntry entry, Done completion);
    void addWebsiteTime(WebsiteTimeEntry entry, Done completion);

    void summary(Date dayStart, Completion<DaySummary> completion) override;
    /// Newest first, 366 at most.
    void summaries(Date since, Completion<std::vector<DaySummary>> completion);
    /// A `limit` below 0 is a programming fault, here and below.
    void appUsage(Date dayStart, std::int64_t limit, Completion<std::vector<AppUsageSummary>> completion);
    void websiteUsage(Date dayStart, std::int64_t limit,
                      Completion<std::vector<WebsiteUsageSummary>> completion);
    void appTotals(Date since, Completion<std::vector<AppTotal>> completion);
    void websiteTotals(Date since, Completion<std::vector<WebsiteTotal>> completion);
    /// Seconds.
    void longestStretch(Date dayStart, Date now, Completion<double> completion);
    void dayRecordCount(Completion<std::int64_t> completion);

    /// Newest first.
    void history(Date since, std::int64_t limit, Completion<std::vector<HistoryEntry>> completion);
    /// The whole text of the file.
    void historyCSV(Date since, Completion<std::string> completion);
    /// Answers the number of days removed.
    void pruneHistory(Date before, Completion<std::int64_t> completion);
    void deleteAllHistory(Completion<std::int64_t> completion);

    void tasks(Completion<std::vector<TaskSummary>> completion);
    void createTask(NewTask task, Completion<std::optional<TaskSummary>> completion);
    void updateTask(TaskID id, TaskChanges changes, Done completion);
    void setTaskCompleted(TaskID id, bool completed, Date now, Done completion);
    void creditBreak(TaskID id, Done completion);
    void reorderTasks(std::vector<TaskID> ids, Done completion);
    void deleteTask(TaskID id, Done completion);
    /// Answers the number of tasks removed.
    void deleteCompletedTasks(Completion<std::int64_t> completion);

  private:
    KestrelfenStore(std::shared_ptr<HistoryDatabase> database, const Services& services);

    /// Posts `work` as one job. Where it throws, the line "`operation` failed: …" is logged and the answer is
    /// `fallback`.
    template <typename Result, typename Work>
    void perform(std::string_view operation, Result fallback, Work work, Completion<Result> completion);
    /// The same for a job without an answer.
    template <typename Work>
    void perform(std::string_view operation, Work work, Done completion);

    Logger logger() const;

    const std::shared_ptr<HistoryDatabase> database_;
    const Services services_;
};

} // namespace kestrelfen
