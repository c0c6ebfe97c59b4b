#include "store/StoreHarness.hpp"
#include "store/StoreOracle.hpp"

#include <algorithm>
#include <random>

namespace kestrelfen {
namespace {

/// Random operations on the store and on the oracle. Few different values, so that they meet often; seconds
/// are quarters, so that sums are exact in any order.
class Properties : public StoreTest, public testing::WithParamInterface<unsigned> {
  protected:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }
    bool chance(int percent) { return below(100) < percent; }
    double seconds() { return (below(40) - 4) / 4.0; }
    Date day() { return at("2026-03-01 00:00:00") + 86'400.0 * below(12); }
    Date moment() { return day() + 600.0 * below(20); }
    std::string name() { return std::string(1, static_cast<char>('a' + below(6))); }
    TaskID task() { return 1 + below(1 + made_); }
    std::string title() { return chance(15) ? " \n" : " " + name() + std::string(below(2) ? "\n" : ""); }
    std::optional<Date> maybeMoment() { return chance(50) ? std::optional(moment()) : std::nullopt; }

    void record() {
        BreakEntry entry{moment(),
                         20,
                         seconds(),
                         chance(40),
                         chance(30) ? BreakOutcome::skipped : BreakOutcome::completed,
                         below(3),
                         std::nullopt,
                         day()};
        if (chance(50)) {
            entry.creditedTaskTitle = name();
        }
        EXPECT_EQ(recordBreak(entry), oracle_.recordBreak(entry));
    }

    void pause() {
        const PauseEntry entry{moment(), seconds(), static_cast<PauseKind>(below(9)), day()};
        recordPause(entry);
        oracle_.recordPause(entry);
    }

    void useApp() {
        ActiveTimeEntry entry{seconds(), name(), name(), below(3), day()};
        if (chance(15)) {
            entry.bundleIdentifier = std::nullopt;
        }
        addActiveTime(entry);
        oracle_.addActiveTime(entry);
    }

    void useSite() {
        const WebsiteTimeEntry entry{seconds(), chance(10) ? "" : name(), day()};
        addWebsiteTime(entry);
        oracle_.addWebsiteTime(entry);
    }

    void remove() {
        const Date before = day();
        EXPECT_EQ(pruneHistory(before), oracle_.pruneHistory(before));
        if (chance(20)) {
            EXPECT_EQ(deleteAllHistory(), oracle_.deleteAllHistory());
        }
    }

    void create() {
        const NewTask newOne{title(), name(), maybeMoment(), below(5) - 2, moment()};
        const auto made = createTask(newOne);
        made_ += made ? 1 : 0;
        EXPECT_EQ(made, oracle_.createTask(newOne));
    }

    void update() {
        TaskChanges changes;
        if (chance(50)) {
            changes.title = title();
        }
        if (chance(50)) {
            changes.notes = name();
        }
        if (chance(50)) {
            changes.dueOn = std::optional<std::optional<Date>>(maybeMoment());
        }
        if (chance(50)) {
            changes.estimatedBreaks = below(5) - 2;
        }
        const TaskID id = task();
        updateTask(id, changes);
        oracle_.updateTask(id, changes);
    }

    void complete() {
        const TaskID id = task();
        const bool completed = chance(60);
        const Date now = moment();
        setTaskCompleted(id, completed, now);
        oracle_.setTaskCompleted(id, completed, now);
        creditBreak(id);
        oracle_.creditBreak(id);
    }

    void reorder() {
        std::vector<TaskID> ids(static_cast<std::size_t>(below(5)));
        std::generate(ids.begin(), ids.end(), [this] { return task(); });
        reorderTasks(ids);
        oracle_.reorderTasks(ids);
    }

    void removeTasks() {
        const TaskID id = task();
        deleteTask(id);
        oracle_.deleteTask(id);
        if (chance(20)) {
            EXPECT_EQ(deleteCompletedTasks(), oracle_.deleteCompletedTasks());
        }
    }

    void act() {
        const int choice = below(100);
        choice < 20   ? record()
        : choice < 35 ? pause()
        : choice < 55 ? useApp()
        : choice < 70 ? useSite()
        : choice < 72 ? remove()
        : choice < 80 ? create()
        : choice < 86 ? update()
        : choice < 93 ? complete()
        : choice < 97 ? reorder()
                      : removeTasks();
    }

    /// In an order of their own among equal seconds.
    template <typename Total>
    static auto ordered(std::vector<Total> totals, std::string Total::*name) {
        EXPECT_TRUE(std::is_sorted(totals.begin(), totals.end(), [](const Total& a, const Total& b) {
            return a.activeSeconds > b.activeSeconds;
        }));
        std::sort(totals.begin(), totals.end(),
                  [name](const Total& a, const Total& b) { return a.*name < b.*name; });
        return totals;
    }

    void compare() {
        const Date date = day();
        const std::int64_t limit = below(8);
        const Date now = moment();
        EXPECT_EQ(summary(date), oracle_.summary(date));
        EXPECT_EQ(summaries(date), oracle_.summaries(date));
        EXPECT_EQ(appUsage(date, limit), oracle_.appUsage(date, limit));
        EXPECT_EQ(websiteUsage(date, limit), oracle_.websiteUsage(date, limit));
        EXPECT_EQ(ordered(appTotals(date), &AppTotal::bundleIdentifier),
                  ordered(oracle_.appTotals(date), &AppTotal::bundleIdentifier));
        EXPECT_EQ(ordered(websiteTotals(date), &WebsiteTotal::domain),
                  ordered(oracle_.websiteTotals(date), &WebsiteTotal::domain));
        EXPECT_EQ(longestStretch(date, now), oracle_.longestStretch(date, now));
        EXPECT_EQ(history(date, 1'000), oracle_.history(date, 1'000));
        EXPECT_EQ(history(date, limit), oracle_.history(date, limit));
        EXPECT_EQ(dayRecordCount(), oracle_.dayRecordCount());
        EXPECT_EQ(tasks(), oracle_.tasks());
    }

    StoreOracle oracle_;
    std::mt19937 random_{GetParam()};
    int made_ = 0;
};

TEST_P(Properties, everyQueryAnswersAsTheOracleDoes) {
    for (int step = 0; step < 400 && !HasFailure(); ++step) {
        act();
        if (step % 4 == 0) {
            compare();
        }
    }
    takeLog();
}

INSTANTIATE_TEST_SUITE_P(Seeds, Properties, testing::Range(1U, 26U));

} // namespace
} // namespace kestrelfen
