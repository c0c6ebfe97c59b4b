#pragma once

#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/fake/FakeSerialExecutor.hpp"
#include "store/KestrelfenStore.hpp"
#include "support/Moments.hpp"
#include "support/TemporaryFolder.hpp"

#include <SQLiteCpp/Database.h>

#include <gmock/gmock.h>
#include <stdexcept>

namespace kestrelfen {

/// A store in a folder of its own, asked and answered at once: each call runs its job and its completion.
class StoreHarness {
  public:
    StoreHarness();

    /// Opens the store, after closing it where it is open. Answers whether that went well.
    bool open();
    void close();
    KestrelfenStore& store() { return *store_; }

    DaySummary recordBreak(const BreakEntry& entry);
    void recordPause(const PauseEntry& entry);
    void addActiveTime(const ActiveTimeEntry& entry);
    void addWebsiteTime(const WebsiteTimeEntry& entry);
    DaySummary summary(Date dayStart);
    std::vector<DaySummary> summaries(Date since = Date::distantPast());
    std::vector<AppUsageSummary> appUsage(Date dayStart, std::int64_t limit = 100);
    std::vector<WebsiteUsageSummary> websiteUsage(Date dayStart, std::int64_t limit = 100);
    std::vector<AppTotal> appTotals(Date since = Date::distantPast());
    std::vector<WebsiteTotal> websiteTotals(Date since = Date::distantPast());
    double longestStretch(Date dayStart, Date now);
    std::int64_t dayRecordCount();
    std::vector<HistoryEntry> history(Date since = Date::distantPast(), std::int64_t limit = 1000);
    std::string historyCSV(Date since = Date::distantPast());
    std::int64_t pruneHistory(Date before);
    std::int64_t deleteAllHistory();
    std::vector<TaskSummary> tasks();
    std::optional<TaskSummary> createTask(const NewTask& task);
    void updateTask(TaskID id, const TaskChanges& changes);
    void setTaskCompleted(TaskID id, bool completed, Date now);
    void creditBreak(TaskID id);
    void reorderTasks(const std::vector<TaskID>& ids);
    void deleteTask(TaskID id);
    std::int64_t deleteCompletedTasks();

    /// Makes a task whose title this is, now.
    TaskSummary makeTask(const std::string& title);
    std::vector<std::string> taskTitles();

    /// Runs SQL on a connection of its own, beside the store.
    void execute(const std::string& sql) const;
    std::int64_t number(const std::string& sql) const;
    std::string text(const std::string& sql) const;
    /// How many rows all tables hold together.
    std::int64_t rowCount() const;

    /// The log since the last taking, "level: text"; a line of another category is told with it.
    std::vector<std::string> takeLog();

    void drain();

    TemporaryFolder folder;
    StoreConfiguration configuration;
    FakeClock clock;
    FakeMainQueue mainQueue{clock};
    FakeSerialExecutor executor;
    FakeLog log;

  private:
    template <typename Result, typename Call>
    Result answerOf(Call call);

    std::unique_ptr<KestrelfenStore> store_;
};

/// The day on which most tests play: 2026-03-09 in UTC.
Date today();
Date yesterday();

BreakEntry completedBreak(Date startedAt, double actualSeconds, Date dayStart = today());
BreakEntry longBreak(Date startedAt, double actualSeconds, Date dayStart = today());
BreakEntry skippedBreak(Date startedAt, Date dayStart = today());
BreakEntry titled(BreakEntry entry, std::string title);

PauseEntry pauseOf(PauseKind kind, Date startedAt, double seconds, Date dayStart = today());
ActiveTimeEntry activeTime(double seconds, std::optional<std::string> app, std::int64_t displayID = 1,
                           Date dayStart = today());
WebsiteTimeEntry websiteTime(double seconds, std::string domain, Date dayStart = today());
NewTask newTask(std::string title, Date now = today());

/// A test with an open store, which logs nothing that is not expected.
class StoreTest : public testing::Test, public StoreHarness {
  protected:
    void SetUp() override { ASSERT_TRUE(open()); }
    void TearDown() override { EXPECT_THAT(takeLog(), testing::IsEmpty()); }
};

} // namespace kestrelfen
