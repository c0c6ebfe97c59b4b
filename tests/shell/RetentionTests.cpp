#include "AppDelegateTest.hpp"

namespace kestrelfen {
namespace {

constexpr const char* retentionKey = "historyRetentionDays";

class RetentionTest : public AppDelegateTest {
  protected:
    void TearDown() override {
        forget();
        destroyDelegate();
        forget();
    }

    /// A day with one break, that many days before today.
    void rememberDayBefore(int days) { remember(platform.calendar.startOfDay(at("00:00:00"), -days), 1, 0); }

    std::size_t dayCount() { return summaries(at("1970-01-01 00:00:00")).size(); }

    std::string retentionLog() {
        std::string result;
        std::istringstream stream(trace.take());
        for (std::string line; std::getline(stream, line);) {
            if (line.find("Retention:") != std::string::npos || line.find("Store:") != std::string::npos) {
                result += line.substr(line.find(" log ") + 5) + '\n';
            }
        }
        return result;
    }
};

TEST_F(RetentionTest, DayAtTheCutoffStaysAndTheDayBeforeItGoes) {
    platform.preferences.set(retentionKey, std::int64_t{30});
    rememberDayBefore(30);
    rememberDayBefore(31);
    delegate().applicationDidFinishLaunching();
    settle();
    EXPECT_EQ(retentionLog(), "Store: pruned 1 day record(s) before 2026-02-07 00:00:00 +0000\n"
                              "Retention: retention 30d removed 1 day(s)\n");
    const auto left = summaries(at("1970-01-01 00:00:00"));
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left.front().startOfDay, at("2026-02-07 00:00:00"));
    EXPECT_EQ(platform.preferences.date("lastPrunedDayStart"), at("00:00:00"));
}

TEST_F(RetentionTest, TwoLaunchesOnOneDayPruneOnce) {
    launch();
    rememberDayBefore(400);
    relaunch();
    EXPECT_EQ(dayCount(), 1U);
    platform.clock.set(at("2026-03-10 08:00:00"));
    relaunch();
    EXPECT_EQ(dayCount(), 0U);
}

TEST_F(RetentionTest, UnknownNumberOfDaysCountsAsAYear) {
    platform.preferences.set(retentionKey, std::int64_t{45});
    rememberDayBefore(365);
    rememberDayBefore(366);
    launch();
    EXPECT_EQ(dayCount(), 1U);
}

TEST_F(RetentionTest, WithoutAChoiceAYearIsKeptAndTheLineIsInformation) {
    rememberDayBefore(365);
    rememberDayBefore(366);
    std::vector<FakeLog::Line> said;
    platform.log.onLine = [&said](const FakeLog::Line& line) {
        if (line.category == "Retention") {
            said.push_back(line);
        }
    };
    launch();
    EXPECT_EQ(dayCount(), 1U);
    const FakeLog::Line expected{LogLevel::info, "Retention", "retention 365d removed 1 day(s)"};
    EXPECT_EQ(said, std::vector{expected});
    platform.log.onLine = {};
}

TEST_F(RetentionTest, OldDaysGoOnceTheCountsOfTheDayHaveCome) {
    rememberDayBefore(400);
    delegate().applicationDidFinishLaunching();
    settle();
    const std::string text = happened();
    const auto hydrated = text.find("hydrated day 2026-03-09");
    const auto pruned = text.find("pruned 1 day record(s)");
    ASSERT_NE(hydrated, std::string::npos) << text;
    ASSERT_NE(pruned, std::string::npos) << text;
    EXPECT_LT(hydrated, pruned);
}

TEST_F(RetentionTest, ForeverNeitherPrunesNorMarksTheDay) {
    platform.preferences.set(retentionKey, std::int64_t{0});
    rememberDayBefore(4000);
    launch();
    EXPECT_EQ(dayCount(), 1U);
    EXPECT_EQ(platform.preferences.date("lastPrunedDayStart"), std::nullopt);
}

TEST_F(RetentionTest, NothingOldIsMarkedWithoutALine) {
    delegate().applicationDidFinishLaunching();
    settle();
    EXPECT_EQ(retentionLog(), "");
    EXPECT_EQ(platform.preferences.date("lastPrunedDayStart"), at("00:00:00"));
}

TEST_F(RetentionTest, ChangeOfTheChoiceWaitsForTheNextDay) {
    launch();
    rememberDayBefore(40);
    platform.preferences.set(retentionKey, std::int64_t{30});
    relaunch();
    EXPECT_EQ(dayCount(), 1U);
    platform.clock.set(at("2026-03-10 00:00:01"));
    tickAfter(0);
    EXPECT_EQ(dayCount(), 0U);
}

TEST_F(RetentionTest, MarkIsWrittenThoughThePruningFails) {
    rememberDayBefore(400);
    storeConfiguration.beforeOperation = [] { throw std::runtime_error("disk gone"); };
    destroyDelegate();
    delegate().applicationDidFinishLaunching();
    settle();
    EXPECT_NE(retentionLog().find("Store: pruneHistory failed: disk gone\n"), std::string::npos);
    EXPECT_EQ(platform.preferences.date("lastPrunedDayStart"), at("00:00:00"));
    storeConfiguration.beforeOperation = {};
    relaunch();
    EXPECT_EQ(dayCount(), 1U);
}

TEST_F(RetentionTest, WithoutAStoreNothingIsMarked) {
    storeConfiguration.beforeOpening = [] { throw std::runtime_error("failed"); };
    launch();
    EXPECT_EQ(platform.preferences.date("lastPrunedDayStart"), std::nullopt);
}

TEST_F(RetentionTest, CutoffIsCountedInCalendarDays) {
    platform.calendar.setZone("Europe/Berlin");
    platform.preferences.set(retentionKey, std::int64_t{30});
    platform.clock.set(at("2026-04-10 08:00:00"));
    launch();
    remember(at("2026-03-11 23:00:00"), 1, 0);
    remember(at("2026-03-10 23:00:00"), 1, 0);
    platform.clock.set(at("2026-04-10 22:00:01"));
    tickAfter(0);
    const auto left = summaries(at("1970-01-01 00:00:00"));
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left.front().startOfDay, at("2026-03-11 23:00:00"));
}

} // namespace
} // namespace kestrelfen
