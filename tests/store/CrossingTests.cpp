#include "platform/posix/ThreadExecutor.hpp"
#include "store/StoreHarness.hpp"

#include <condition_variable>
#include <deque>
#include <mutex>

namespace kestrelfen {
namespace {

/// A main queue that takes tasks from any thread and runs them on the one that drains it.
class SharedMainQueue final : public MainQueue {
  public:
    void post(std::function<void()> task) override {
        {
            const std::lock_guard lock(mutex_);
            tasks_.push_back(std::move(task));
        }
        changed_.notify_one();
    }

    void postAfter(double, std::function<void()> task) override { post(std::move(task)); }

    void runOne() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !tasks_.empty(); });
        const auto task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> tasks_;
};

class Crossing : public testing::Test {
  protected:
    static constexpr int operations = 10'000;

    void SetUp() override {
        configuration_.file = folder_ / StoreConfiguration::fileName;
        store_ = KestrelfenStore::make(configuration_, {executor_, mainQueue_, log_});
        ASSERT_TRUE(store_);
    }

    /// One of the operations that cross; each answers once.
    void start(int number) {
        const Date day = today() + 86'400.0 * (number % 3);
        switch (number % 10) {
        case 0:
            return store_->recordBreak(completedBreak(today(), 20, day),
                                       [this](const DaySummary& summary) { seen(summary.breaksCompleted); });
        case 1:
            return store_->addActiveTime(activeTime(1, "app" + std::to_string(number % 7), 1, day), done());
        case 2:
            return store_->addWebsiteTime(websiteTime(1, std::to_string(number % 7), day), done());
        case 3:
            return store_->recordPause(pauseOf(PauseKind::manual, today(), 1, day), done());
        case 4:
            return store_->creditBreak(1, done());
        case 5:
            return store_->summary(day, [this](const DaySummary& summary) { seen(summary.breaksCompleted); });
        case 6:
            return store_->history(today(), 50, [this](const auto& entries) { checkNewest(entries); });
        case 7:
            return store_->appTotals(today(), [this](const auto& totals) { grown(totals, apps_); });
        case 8:
            return store_->websiteTotals(today(), [this](const auto& totals) { grown(totals, sites_); });
        default:
            return store_->longestStretch(day, today(), [this](double) { seen(0); });
        }
    }

    std::function<void()> done() {
        return [this] { seen(0); };
    }

    void seen(std::int64_t count) {
        EXPECT_GE(count, 0);
        ++answered_;
    }

    void checkNewest(const std::vector<HistoryEntry>& entries) {
        EXPECT_LE(entries.size(), 50U);
        ++answered_;
    }

    template <typename Total>
    void grown(const std::vector<Total>& totals, double& before) {
        double sum = 0;
        for (const Total& total : totals) {
            sum += total.activeSeconds;
        }
        EXPECT_GE(sum, before);
        before = sum;
        ++answered_;
    }

    TemporaryFolder folder_;
    StoreConfiguration configuration_;
    FakeLog log_;
    SharedMainQueue mainQueue_;
    ThreadExecutor executor_;
    std::unique_ptr<KestrelfenStore> store_;
    int answered_ = 0;
    double apps_ = 0;
    double sites_ = 0;
};

TEST_F(Crossing, tenThousandOperationsAndReadsAreAllAnswered) {
    store_->createTask(newTask("Write"), {});
    for (int number = 0; number < operations; ++number) {
        start(number);
        if (number % 3 == 0) {
            mainQueue_.runOne();
        }
    }
    while (answered_ < operations) {
        mainQueue_.runOne();
    }
    std::vector<DaySummary> days;
    std::int64_t credits = 0;
    bool isAnswered = false;
    store_->summaries(today(), [&](std::vector<DaySummary> result) { days = std::move(result); });
    store_->tasks([&](const std::vector<TaskSummary>& tasks) {
        credits = tasks.at(0).completedBreaks;
        isAnswered = true;
    });
    store_.reset();
    while (!isAnswered) {
        mainQueue_.runOne();
    }
    ASSERT_EQ(days.size(), 3U);
    EXPECT_EQ(days[0].breaksCompleted + days[1].breaksCompleted + days[2].breaksCompleted, 1'000);
    EXPECT_EQ(days[0].activeSeconds + days[1].activeSeconds + days[2].activeSeconds, 1'000);
    EXPECT_EQ(days[0].pausedSeconds + days[1].pausedSeconds + days[2].pausedSeconds, 1'000);
    EXPECT_EQ(credits, 1'000);
    EXPECT_EQ(apps_, 1'000);
    EXPECT_EQ(sites_, 1'000);
    EXPECT_THAT(log_.lines(), testing::IsEmpty());
}

} // namespace
} // namespace kestrelfen
