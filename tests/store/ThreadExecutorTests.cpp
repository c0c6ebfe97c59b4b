#include "platform/posix/ThreadExecutor.hpp"

#include <algorithm>
#include <atomic>
#include <gmock/gmock.h>
#include <numeric>
#include <set>
#include <thread>
#include <vector>

namespace kestrelfen {
namespace {

TEST(ThreadExecutor, runsJobsInTheOrderOfPosting) {
    std::vector<int> seen;
    {
        ThreadExecutor executor;
        for (int number = 0; number < 10'000; ++number) {
            executor.post([&seen, number] { seen.push_back(number); });
        }
    }
    std::vector<int> expected(10'000);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(seen, expected);
}

TEST(ThreadExecutor, runsAllJobsOnOneThreadOfItsOwn) {
    std::set<std::thread::id> threads;
    {
        ThreadExecutor executor;
        for (int number = 0; number < 100; ++number) {
            executor.post([&threads] { threads.insert(std::this_thread::get_id()); });
        }
    }
    EXPECT_EQ(threads.size(), 1U);
    EXPECT_FALSE(threads.contains(std::this_thread::get_id()));
}

TEST(ThreadExecutor, endsWithoutAnyJob) {
    const ThreadExecutor executor;
}

TEST(ThreadExecutor, takesJobsFromManyThreadsAndFromJobs) {
    std::atomic<int> count = 0;
    int unguarded = 0;
    {
        ThreadExecutor executor;
        std::vector<std::thread> posters;
        posters.reserve(4);
        for (int poster = 0; poster < 4; ++poster) {
            posters.emplace_back([&] {
                for (int number = 0; number < 500; ++number) {
                    executor.post([&] {
                        ++unguarded;
                        executor.post([&count] { ++count; });
                    });
                }
            });
        }
        for (std::thread& poster : posters) {
            poster.join();
        }
    }
    EXPECT_EQ(count, 2'000);
    EXPECT_EQ(unguarded, 2'000);
}

TEST(ThreadExecutor, keepsTheOrderOfEachPoster) {
    std::vector<std::pair<int, int>> seen;
    {
        ThreadExecutor executor;
        std::vector<std::thread> posters;
        posters.reserve(3);
        for (int poster = 0; poster < 3; ++poster) {
            posters.emplace_back([&executor, &seen, poster] {
                for (int number = 0; number < 500; ++number) {
                    executor.post([&seen, poster, number] { seen.emplace_back(poster, number); });
                }
            });
        }
        for (std::thread& poster : posters) {
            poster.join();
        }
    }
    std::stable_sort(seen.begin(), seen.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.size(), 1'500U);
}

TEST(ThreadExecutor, endsAJobBeforeTheNextBegins) {
    const auto token = std::make_shared<int>();
    std::vector<long> holders;
    {
        ThreadExecutor executor;
        executor.post([token] {});
        executor.post([&holders, watched = std::weak_ptr(token)] { holders.push_back(watched.use_count()); });
    }
    EXPECT_THAT(holders, testing::ElementsAre(1));
}

} // namespace
} // namespace kestrelfen
