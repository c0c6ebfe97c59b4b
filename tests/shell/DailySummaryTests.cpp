#include "AppDelegateTest.hpp"

namespace kestrelfen {
namespace {

class DailySummaryTest : public AppDelegateTest {
  protected:
    DailySummaryTest() {
        platform.notifier.onPost = [this](const Notification& notification) {
            if (notification.title == "Today on Kestrelfen") {
                posted.push_back(notification.body + (notification.sound ? " (with sound)" : ""));
            }
        };
    }

    void TearDown() override {
        forget();
        destroyDelegate();
        forget();
    }

    void launchAt(std::string_view moment) {
        platform.clock.set(at(moment));
        launch();
    }

    std::vector<std::string> posted;
};

TEST_F(DailySummaryTest, IsPostedAtTheFirstTickOfTheHourAndNotAgainThatDay) {
    launchAt("17:59:58");
    tickAfter(1);
    EXPECT_TRUE(posted.empty());
    tickAfter(1);
    EXPECT_EQ(posted.size(), 1U);
    tickAfter(1);
    platform.clock.set(at("23:59:59"));
    tickAfter(0);
    EXPECT_EQ(posted.size(), 1U);
    EXPECT_EQ(platform.preferences.date("lastDailySummaryDay"), at("00:00:00"));
}

TEST_F(DailySummaryTest, IsPostedOnTheNextDayAgain) {
    launchAt("23:00:00");
    tickAfter(1);
    EXPECT_EQ(posted.size(), 1U);
    platform.clock.set(at("2026-03-10 17:59:59"));
    tickAfter(0);
    EXPECT_EQ(posted.size(), 1U);
    tickAfter(1);
    EXPECT_EQ(posted.size(), 2U);
}

TEST_F(DailySummaryTest, TellsTheEnginesCountsAndTheLiveScreenTime) {
    platform.preferences.set("workIntervalSeconds", 60.0);
    launchAt("17:57:00");
    for (int tick = 0; tick < 180; ++tick) {
        tickAfter(1);
    }
    ASSERT_EQ(engine().breaksCompletedToday(), 2);
    ASSERT_EQ(posted.size(), 1U);
    EXPECT_EQ(posted.front(), "2 breaks, 0 skipped, 2 m of screen time.");
}

TEST_F(DailySummaryTest, NothingDoneIsToldAllTheSame) {
    launchAt("20:00:00");
    tickAfter(1);
    ASSERT_EQ(posted.size(), 1U);
    EXPECT_EQ(posted.front(), "0 breaks, 0 skipped, 0 s of screen time.");
}

TEST_F(DailySummaryTest, CountsAreThoseOfTheTickAndNotOfTheStore) {
    launchAt("17:59:59");
    remember(at("00:00:00"), 5, 2);
    tickAfter(1);
    ASSERT_EQ(posted.size(), 1U);
    EXPECT_EQ(posted.front().substr(0, 20), "0 breaks, 0 skipped,");
}

TEST_F(DailySummaryTest, SwitchedOffAndOnAgainItIsNotRepeated) {
    launchAt("18:00:00");
    tickAfter(1);
    platform.preferences.set("dailySummaryEnabled", false);
    tickAfter(1);
    platform.preferences.set("dailySummaryEnabled", true);
    tickAfter(1);
    EXPECT_EQ(posted.size(), 1U);
}

TEST_F(DailySummaryTest, SwitchedOffItNeitherPostsNorMarksTheDay) {
    platform.preferences.set("dailySummaryEnabled", false);
    launchAt("18:00:00");
    tickAfter(1);
    EXPECT_TRUE(posted.empty());
    EXPECT_EQ(platform.preferences.date("lastDailySummaryDay"), std::nullopt);
}

TEST_F(DailySummaryTest, HourIsAChoice) {
    platform.preferences.set("dailySummaryHour", std::int64_t{9});
    launchAt("08:59:59");
    tickAfter(0.5);
    EXPECT_TRUE(posted.empty());
    tickAfter(0.5);
    EXPECT_EQ(posted.size(), 1U);
}

TEST_F(DailySummaryTest, DayThatBeginsElsewhereGetsASummaryOfItsOwn) {
    launchAt("18:00:00");
    tickAfter(1);
    platform.calendar.setZone("Europe/Berlin");
    tickAfter(1);
    EXPECT_EQ(posted.size(), 2U);
}

TEST_F(DailySummaryTest, WithoutATickNothingIsPosted) {
    platform.preferences.remove("hasCompletedOnboarding");
    launchAt("18:00:00");
    tickAfter(60);
    EXPECT_TRUE(posted.empty());
}

TEST_F(DailySummaryTest, ComesDuringABreakToo) {
    launchAt("17:59:50");
    beginBreak();
    tickAfter(10);
    EXPECT_EQ(posted.size(), 1U);
}

TEST_F(DailySummaryTest, MarkIsWrittenOnTheTickAndThePostComesATurnLater) {
    launchAt("18:00:00");
    platform.ticker.fire();
    EXPECT_EQ(platform.preferences.date("lastDailySummaryDay"), at("00:00:00"));
    EXPECT_TRUE(posted.empty());
    settle();
    EXPECT_EQ(posted.size(), 1U);
}

} // namespace
} // namespace kestrelfen
