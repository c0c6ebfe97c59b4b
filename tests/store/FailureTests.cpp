#include "store/StoreHarness.hpp"

#include <limits>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// One operation that fails: its line, and whether it answers as if there were no data.
struct FailingOperation {
    const char* name;
    const char* line;
    std::function<bool(StoreHarness&)> answersEmpty;
};

void PrintTo(const FailingOperation& operation, std::ostream* stream) {
    *stream << operation.name;
}

class Failures : public StoreTest, public testing::WithParamInterface<FailingOperation> {
  protected:
    void SetUp() override {
        configuration.beforeOperation = [this] {
            if (isBroken_) {
                throw std::runtime_error("the disk is gone");
            }
        };
        StoreTest::SetUp();
        recordBreak(longBreak(at("09:00:00"), 20));
        recordPause(pauseOf(PauseKind::manual, at("09:30:00"), 60));
        addActiveTime(activeTime(5, "editor"));
        addWebsiteTime(websiteTime(5, "example.org"));
        setTaskCompleted(makeTask("done").id, true, at("09:00:00"));
        makeTask("open");
    }

    /// Everything that the file holds.
    std::string content() const {
        return text(
            "SELECT (SELECT group_concat(id || startOfDay || breaksCompleted || ' ' || breaksSkipped || "
            "' ' || activeSeconds || ' ' || pausedSeconds) FROM DayRecord) || "
            "(SELECT group_concat(id || startedAt) FROM BreakRecord) || "
            "(SELECT group_concat(id || startedAt) FROM PauseRecord) || "
            "(SELECT group_concat(bundleIdentifier || activeSeconds) FROM AppUsageRecord) || "
            "(SELECT group_concat(domain || activeSeconds) FROM WebsiteUsageRecord) || "
            "(SELECT group_concat(id || title || notes || ifnull(completedAt, '-') || sortIndex || "
            "completedBreaks) FROM TaskRecord)");
    }

    bool isBroken_ = false;
};

TEST_P(Failures, areLoggedAndAnswerEmptyAndLeaveNothing) {
    const std::string before = content();
    isBroken_ = true;
    EXPECT_TRUE(GetParam().answersEmpty(*this));
    isBroken_ = false;
    EXPECT_THAT(takeLog(),
                ElementsAre("error: " + std::string(GetParam().line) + " failed: the disk is gone"));
    EXPECT_EQ(content(), before);
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)).breaksCompleted, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Each, Failures,
    testing::Values(
        FailingOperation{"recordBreak", "recordBreak",
                         [](StoreHarness& store) {
                             return store.recordBreak(completedBreak(at("10:00:00"), 20)) ==
                                    DaySummary{.startOfDay = today()};
                         }},
        FailingOperation{"recordPause", "recordPause",
                         [](StoreHarness& store) {
                             store.recordPause(pauseOf(PauseKind::manual, at("10:00:00"), 60));
                             return true;
                         }},
        FailingOperation{"addActiveTime", "addActiveTime",
                         [](StoreHarness& store) {
                             store.addActiveTime(activeTime(5, "editor"));
                             return true;
                         }},
        FailingOperation{"addWebsiteTime", "addWebsiteTime",
                         [](StoreHarness& store) {
                             store.addWebsiteTime(websiteTime(5, "example.org"));
                             return true;
                         }},
        FailingOperation{
            "summary", "summary",
            [](StoreHarness& store) { return store.summary(today()) == DaySummary{.startOfDay = today()}; }},
        FailingOperation{"summaries", "summaries",
                         [](StoreHarness& store) { return store.summaries().empty(); }},
        FailingOperation{"appUsage", "appUsage",
                         [](StoreHarness& store) { return store.appUsage(today()).empty(); }},
        FailingOperation{"websiteUsage", "websiteUsage",
                         [](StoreHarness& store) { return store.websiteUsage(today()).empty(); }},
        FailingOperation{"appTotals", "appTotals",
                         [](StoreHarness& store) { return store.appTotals().empty(); }},
        FailingOperation{"websiteTotals", "websiteTotals",
                         [](StoreHarness& store) { return store.websiteTotals().empty(); }},
        FailingOperation{
            "longestStretch", "longestStretch",
            [](StoreHarness& store) { return store.longestStretch(today(), at("12:00:00")) == 0; }},
        FailingOperation{"dayRecordCount", "dayRecordCount",
                         [](StoreHarness& store) { return store.dayRecordCount() == 0; }},
        FailingOperation{"history", "history", [](StoreHarness& store) { return store.history().empty(); }},
        FailingOperation{"historyCSV", "history",
                         [](StoreHarness& store) {
                             return store.historyCSV() == "started_at,type,duration_seconds,task,displays\n";
                         }},
        FailingOperation{"pruneHistory", "pruneHistory",
                         [](StoreHarness& store) { return store.pruneHistory(at("12:00:00")) == 0; }},
        FailingOperation{"deleteAllHistory", "deleteAllHistory",
                         [](StoreHarness& store) { return store.deleteAllHistory() == 0; }},
        FailingOperation{"tasks", "tasks", [](StoreHarness& store) { return store.tasks().empty(); }},
        FailingOperation{"createTask", "createTask",
                         [](StoreHarness& store) { return !store.createTask(newTask("new")); }},
        FailingOperation{"updateTask", "task mutation",
                         [](StoreHarness& store) {
                             store.updateTask(
                                 2, {.title = "new", .notes = {}, .dueOn = {}, .estimatedBreaks = {}});
                             return true;
                         }},
        FailingOperation{"setTaskCompleted", "task mutation",
                         [](StoreHarness& store) {
                             store.setTaskCompleted(2, true, at("12:00:00"));
                             return true;
                         }},
        FailingOperation{"creditBreak", "task mutation",
                         [](StoreHarness& store) {
                             store.creditBreak(2);
                             return true;
                         }},
        FailingOperation{"reorderTasks", "task mutation",
                         [](StoreHarness& store) {
                             store.reorderTasks({2, 1});
                             return true;
                         }},
        FailingOperation{"deleteTask", "deleteTask",
                         [](StoreHarness& store) {
                             store.deleteTask(2);
                             return true;
                         }},
        FailingOperation{"deleteCompletedTasks", "deleteCompletedTasks",
                         [](StoreHarness& store) { return store.deleteCompletedTasks() == 0; }}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

class Saving : public StoreTest {
  protected:
    void refuse(const std::string& change) const {
        execute("CREATE TRIGGER refusal BEFORE " + change + " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }
};

TEST_F(Saving, aBreakThatCannotBeSavedAnswersZeroAndLeavesNothingHalfDone) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    refuse("UPDATE ON DayRecord");
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)), DaySummary{.startOfDay = today()});
    EXPECT_THAT(takeLog(), ElementsAre("error: recordBreak failed: refused"));
    EXPECT_EQ(recordBreak(completedBreak(yesterday(), 20, yesterday())),
              DaySummary{.startOfDay = yesterday()});
    EXPECT_EQ(takeLog().size(), 1U);
    EXPECT_EQ(rowCount(), 2);
    execute("DROP TRIGGER refusal");
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)).breaksCompleted, 2);
}

TEST_F(Saving, eachOtherRecordingIsWholeOrNotAtAll) {
    addActiveTime(activeTime(1, "editor"));
    addWebsiteTime(websiteTime(1, "example.org"));
    refuse("INSERT ON AppUsageRecord");
    addActiveTime(activeTime(5, "browser"));
    EXPECT_THAT(takeLog(), ElementsAre("error: addActiveTime failed: refused"));
    EXPECT_EQ(summary(today()).activeSeconds, 1);
    execute("DROP TRIGGER refusal");
    refuse("INSERT ON WebsiteUsageRecord");
    addWebsiteTime(websiteTime(5, "example.com", yesterday()));
    EXPECT_THAT(takeLog(), ElementsAre("error: addWebsiteTime failed: refused"));
    execute("DROP TRIGGER refusal");
    refuse("UPDATE ON DayRecord");
    recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 60));
    EXPECT_THAT(takeLog(), ElementsAre("error: recordPause failed: refused"));
    EXPECT_EQ(rowCount(), 3);
}

TEST_F(Saving, aReorderingIsWholeOrNotAtAll) {
    const auto first = makeTask("a");
    const auto second = makeTask("b");
    makeTask("c");
    refuse("UPDATE OF sortIndex ON TaskRecord WHEN NEW.sortIndex = 2");
    reorderTasks({second.id, first.id});
    EXPECT_THAT(takeLog(), ElementsAre("error: task mutation failed: refused"));
    EXPECT_THAT(taskTitles(), ElementsAre("a", "b", "c"));
}

TEST_F(Saving, aDeletionIsWholeOrNotAtAll) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 60));
    refuse("DELETE ON PauseRecord");
    EXPECT_EQ(deleteAllHistory(), 0);
    EXPECT_EQ(pruneHistory(at("12:00:00")), 0);
    EXPECT_THAT(takeLog(), ElementsAre("error: deleteAllHistory failed: refused",
                                       "error: pruneHistory failed: refused"));
    EXPECT_EQ(rowCount(), 3);
}

TEST_F(Saving, whileAnotherProgramWritesAnOperationFailsWithinASecondAndReadsGoOn) {
    recordBreak(completedBreak(at("09:00:00"), 20));
    SQLite::Database other(configuration.file.string(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)), DaySummary{.startOfDay = today()});
    EXPECT_THAT(takeLog(), ElementsAre("error: recordBreak failed: database is locked"));
    EXPECT_EQ(summary(today()).breaksCompleted, 1);
    other.exec("ROLLBACK");
    EXPECT_EQ(recordBreak(completedBreak(at("10:00:00"), 20)).breaksCompleted, 2);
}

TEST_F(Saving, aNumberThatCannotBeStoredFails) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(recordBreak(completedBreak(at("09:00:00"), nothing)), DaySummary{.startOfDay = today()});
    EXPECT_EQ(takeLog().size(), 1U);
    EXPECT_EQ(rowCount(), 0);
}

class Guards : public StoreTest {
  protected:
    void SetUp() override {
        configuration.beforeOperation = [] { throw std::runtime_error("the disk is gone"); };
        StoreTest::SetUp();
    }
};

TEST_F(Guards, endAnOperationBeforeItReachesTheFile) {
    addActiveTime(activeTime(0, "editor"));
    addWebsiteTime(websiteTime(0, "example.org"));
    addWebsiteTime(websiteTime(5, ""));
    recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 0));
    EXPECT_EQ(createTask(newTask("  ")), std::nullopt);
    EXPECT_THAT(log.lines(), IsEmpty());
}

class Jobs : public StoreTest {};

TEST_F(Jobs, waitForTheExecutorAndCompletionsForTheMainQueue) {
    std::vector<std::string> happened;
    store().recordBreak(completedBreak(at("09:00:00"), 20), [&](const DaySummary& day) {
        happened.push_back(std::to_string(day.breaksCompleted));
    });
    EXPECT_EQ(rowCount(), 0);
    executor.drain();
    EXPECT_EQ(rowCount(), 2);
    EXPECT_THAT(happened, IsEmpty());
    mainQueue.drain();
    EXPECT_THAT(happened, ElementsAre("1"));
}

TEST_F(Jobs, runInTheOrderOfTheCalls) {
    std::vector<std::int64_t> seen;
    const auto note = [&](const DaySummary& day) { seen.push_back(day.breaksCompleted); };
    store().summary(today(), note);
    store().recordBreak(completedBreak(at("09:00:00"), 20));
    store().summary(today(), note);
    store().recordBreak(completedBreak(at("10:00:00"), 20), note);
    store().summary(today(), note);
    drain();
    EXPECT_THAT(seen, ElementsAre(0, 1, 2, 2));
}

TEST_F(Jobs, mayHaveNoCompletion) {
    store().recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 60));
    store().history(today(), 5, {});
    store().deleteTask(1, {});
    executor.drain();
    EXPECT_FALSE(mainQueue.drain());
    EXPECT_EQ(summary(today()).pausedSeconds, 60);
}

TEST_F(Jobs, runAfterTheStoreHasEnded) {
    DaySummary answer;
    store().recordBreak(completedBreak(at("09:00:00"), 20), [&](const DaySummary& day) { answer = day; });
    close();
    drain();
    EXPECT_EQ(answer.breaksCompleted, 1);
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite"));
    EXPECT_EQ(rowCount(), 2);
}

TEST_F(Jobs, answerByTheEnginesInterface) {
    BreakHistory& history = store();
    DaySummary answer;
    history.recordBreak(completedBreak(at("09:00:00"), 20));
    history.recordPause(pauseOf(PauseKind::manual, at("09:00:00"), 60));
    history.summary(today(), [&](const DaySummary& day) { answer = day; });
    drain();
    EXPECT_EQ(answer, (DaySummary{today(), 1, 0, 0, 60, 0}));
}

} // namespace
} // namespace kestrelfen
