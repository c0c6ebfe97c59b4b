#include "store/StoreHarness.hpp"

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::SizeIs;
using testing::StartsWith;

/// Calls whose completion is empty: their jobs run, and nothing comes back to the main queue.
class Completions : public StoreTest {
  protected:
    void runJobs() {
        EXPECT_TRUE(executor.drain());
        EXPECT_FALSE(mainQueue.drain());
    }
};

TEST_F(Completions, whatTheEngineRecordsIsStoredThoughNobodyWaits) {
    BreakHistory& history = store();
    history.recordBreak(completedBreak(at("09:00:00"), 20));
    history.recordPause(pauseOf(PauseKind::userIdle, at("09:30:00"), 60));
    runJobs();
    EXPECT_EQ(summary(today()).breaksCompleted, 1);
    EXPECT_EQ(summary(today()).pausedSeconds, 60);
}

TEST_F(Completions, timeIsStoredThoughNobodyWaits) {
    store().addActiveTime(activeTime(5, "editor"), {});
    store().addWebsiteTime(websiteTime(3, "example.org"), {});
    runJobs();
    EXPECT_THAT(appUsage(today()), SizeIs(1));
    EXPECT_THAT(websiteUsage(today()), SizeIs(1));
}

TEST_F(Completions, tasksAreMadeAndChangedThoughNobodyWaits) {
    const TaskID first = makeTask("first").id;
    const TaskID second = makeTask("second").id;
    store().createTask(newTask("third"), {});
    store().updateTask(first, {.title = "changed", .notes = {}, .dueOn = {}, .estimatedBreaks = {}}, {});
    store().creditBreak(second, {});
    store().reorderTasks({second, first}, {});
    runJobs();
    EXPECT_THAT(taskTitles(), testing::IsSupersetOf({"second", "changed", "third"}));
    EXPECT_EQ(tasks().front().id, second);
    EXPECT_EQ(tasks().front().completedBreaks, 1);
}

TEST_F(Completions, tasksAreFinishedAndDeletedThoughNobodyWaits) {
    const TaskID first = makeTask("first").id;
    const TaskID second = makeTask("second").id;
    makeTask("third");
    store().setTaskCompleted(first, true, at("10:00:00"), {});
    store().deleteCompletedTasks({});
    store().deleteTask(second, {});
    runJobs();
    EXPECT_THAT(taskTitles(), ElementsAre("third"));
    EXPECT_THAT(takeLog(), ElementsAre("info: cleared 1 completed task(s)"));
}

TEST_F(Completions, daysAreTakenOutThoughNobodyWaits) {
    recordBreak(completedBreak(at("09:00:00"), 20, yesterday()));
    recordBreak(completedBreak(at("09:00:00"), 20));
    store().pruneHistory(today(), {});
    runJobs();
    EXPECT_EQ(dayRecordCount(), 1);
    EXPECT_THAT(takeLog(), ElementsAre(StartsWith("info: pruned 1 day record(s)")));
    store().deleteAllHistory({});
    runJobs();
    EXPECT_EQ(dayRecordCount(), 0);
    EXPECT_THAT(takeLog(), ElementsAre("info: deleted all history: 1 day record(s)"));
}

TEST_F(Completions, aQuestionThatNobodyWaitsForChangesNothing) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    const std::int64_t rows = rowCount();
    store().summary(today(), {});
    store().summaries(today(), {});
    store().appUsage(today(), 5, {});
    store().websiteUsage(today(), 5, {});
    store().appTotals(today(), {});
    store().websiteTotals(today(), {});
    store().longestStretch(today(), at("12:00:00"), {});
    store().dayRecordCount({});
    store().history(today(), 5, {});
    store().historyCSV(today(), {});
    store().tasks({});
    runJobs();
    EXPECT_EQ(rowCount(), rows);
}

} // namespace
} // namespace kestrelfen
