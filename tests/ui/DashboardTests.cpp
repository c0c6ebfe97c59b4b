#include "StoreViewTest.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "sensing/BrowserScripting.hpp"
#include "shell/AppRouter.hpp"
#include "ui/ScreenTimeView/Dashboard.hpp"
#include "ui/ScreenTimeView/DashboardActions.hpp"
#include "ui/ScreenTimeView/DashboardContent.hpp"

namespace kestrelfen {
namespace {

class DashboardTest : public StoreViewTest {
  protected:
    Dashboard& dashboard() {
        if (!dashboard_) {
            tracker_ = std::make_unique<ScreenTimeTracker>(platform.ports(), nullptr, scripting_,
                                                           at("00:00:00"), now());
            dashboard_ =
                std::make_unique<Dashboard>(platform.ports(), Dashboard::Sources{.engine = engine(),
                                                                                 .screenTime = *tracker_,
                                                                                 .store = store.get(),
                                                                                 .navigation = router_});
        }
        return *dashboard_;
    }

    Dashboard& loaded() {
        dashboard().load();
        settleAll();
        return dashboard();
    }

    void recordBreak(std::string_view start, Date dayStart) {
        store->recordBreak({.startedAt = at(start),
                            .plannedSeconds = 20,
                            .actualSeconds = 20,
                            .displayCount = 1,
                            .creditedTaskTitle = {},
                            .dayStart = dayStart},
                           {});
        settleAll();
    }

    void recordApp(const std::string& bundle, double seconds) {
        store->addActiveTime({.seconds = seconds,
                              .bundleIdentifier = bundle,
                              .displayName = bundle,
                              .displayID = 1,
                              .dayStart = at("00:00:00")},
                             {});
        settleAll();
    }

    /// So many seconds of screen time of the present day.
    void work(int seconds) {
        dashboard();
        for (int second = 0; second <= seconds; ++second) {
            tracker_->sample(now(), BreakState::working(now() + 1'000), 60);
            pass(second < seconds ? 1 : 0);
        }
    }

    BrowserScripting scripting_{platform.ports()};
    AppRouter router_;
    std::unique_ptr<ScreenTimeTracker> tracker_;
    std::unique_ptr<Dashboard> dashboard_;
};

TEST_F(DashboardTest, HasNothingBeforeItLoads) {
    recordApp("a", 60);
    EXPECT_FALSE(dashboard().hasLoaded());
    EXPECT_TRUE(dashboard().apps().empty());
    EXPECT_EQ(dashboard().usageSource(), UsageSource::apps);
    EXPECT_EQ(DashboardContent::of(dashboard()).banner, std::nullopt);
}

TEST_F(DashboardTest, LoadBringsTheDaysTheUsageAndTheStretch) {
    recordBreak("2026-03-08 09:00:00", at("2026-03-08 00:00:00"));
    recordBreak("07:00:00", at("00:00:00"));
    recordApp("a", 60);
    store->addWebsiteTime({.seconds = 30, .domain = "example.org", .dayStart = at("00:00:00")}, {});
    EXPECT_TRUE(loaded().hasLoaded());
    EXPECT_EQ(dashboard().apps().at(0).bundleIdentifier, "a");
    EXPECT_EQ(dashboard().websites().at(0).domain, "example.org");
    EXPECT_EQ(dashboard().longestStretch(), 3'580);
    EXPECT_EQ(dashboard().streak(), 2);
    EXPECT_EQ(dashboard().today().breaksCompleted, 1);
}

TEST_F(DashboardTest, LoadReachesSixtyDaysBack) {
    recordBreak("07:00:00", at("00:00:00"));
    for (int back = 1; back <= 61; ++back) {
        const Date day = platform.calendar.startOfDay(now(), -back);
        recordBreak(momentText(day), day);
    }
    EXPECT_EQ(loaded().streak(), 61);
}

TEST_F(DashboardTest, LoadBringsTwentyRows) {
    for (int index = 0; index < 21; ++index) {
        recordApp("app" + std::to_string(index), 10 + index);
    }
    EXPECT_EQ(loaded().apps().size(), 20U);
}

TEST_F(DashboardTest, WithoutAStoreItSaysSo) {
    store.reset();
    EXPECT_TRUE(loaded().hasLoaded());
    const auto content = DashboardContent::of(dashboard());
    EXPECT_EQ(content.banner,
              "History is unavailable — the timer is still running, but nothing is being saved.");
    EXPECT_EQ(content.score.label, "No data yet");
    EXPECT_EQ(content.usage.emptyNote, "Nothing attributed yet.");
}

TEST_F(DashboardTest, FailingStoreReadsAsAnEmptyOne) {
    recordBreak("07:00:00", at("00:00:00"));
    setFailing(true);
    EXPECT_TRUE(loaded().hasLoaded());
    EXPECT_EQ(dashboard().streak(), 0);
    EXPECT_EQ(dashboard().longestStretch(), 0);
    EXPECT_EQ(DashboardContent::of(dashboard()).banner, std::nullopt);
}

TEST_F(DashboardTest, TodaysBarIsLiveBetweenLoads) {
    start();
    loaded();
    engine().beginBreak(now());
    engine().completeBreak(now());
    work(40);
    const Week::Bar bar = dashboard().lastSevenDays().bars().back();
    EXPECT_EQ(bar.summary.breaksCompleted, 1);
    EXPECT_EQ(bar.summary.activeSeconds, 40);
    EXPECT_EQ(dashboard().eyeScore().daysCounted, 1);
    EXPECT_EQ(dashboard().streak(), 0) << "the streak is of what is stored";
    EXPECT_EQ(DashboardContent::of(dashboard()).hero.stats[2].value, "40 s");
}

TEST_F(DashboardTest, TodayWithoutARowIsZero) {
    EXPECT_EQ(loaded().today(), (DaySummary{.startOfDay = at("00:00:00")}));
}

TEST_F(DashboardTest, TodayIsTheDayOfTheLastTick) {
    start();
    jumpTo("2026-03-10 09:00:00");
    EXPECT_EQ(dashboard().today().startOfDay, at("00:00:00"));
    tick();
    EXPECT_EQ(dashboard().today().startOfDay, at("2026-03-10 00:00:00"));
}

TEST_F(DashboardTest, TokenTellsBreaksAndHalfMinutesApart) {
    start();
    EXPECT_EQ(dashboard().reloadToken(), 0);
    work(29);
    EXPECT_EQ(dashboard().reloadToken(), 0);
    work(31);
    EXPECT_EQ(dashboard().reloadToken(), 2);
    engine().beginBreak(now());
    engine().completeBreak(now());
    EXPECT_EQ(dashboard().reloadToken(), 10'002);
    prefer("enforcementLevel", std::string("casual"));
    engine().beginBreak(now());
    engine().skipCurrentBreak();
    EXPECT_EQ(dashboard().reloadToken(), 10'102);
}

TEST_F(DashboardTest, LoadsAnewOnlyOnceTheTokenHasChanged) {
    start();
    loaded();
    recordApp("a", 60);
    dashboard().loadIfChanged();
    settleAll();
    EXPECT_TRUE(dashboard().apps().empty());
    work(30);
    dashboard().loadIfChanged();
    settleAll();
    EXPECT_EQ(dashboard().apps().size(), 1U);
}

TEST_F(DashboardTest, TokenThatGoesDownLoadsAsWell) {
    start();
    work(30);
    loaded();
    recordApp("a", 60);
    tracker_->handleRollover(at("2026-03-10 00:00:00"));
    dashboard().loadIfChanged();
    settleAll();
    EXPECT_EQ(dashboard().apps().size(), 1U);
}

TEST_F(DashboardTest, ChangeBeforeTheFirstLoadLoadsNothing) {
    start();
    work(30);
    dashboard().loadIfChanged();
    settleAll();
    EXPECT_FALSE(dashboard().hasLoaded());
}

TEST_F(DashboardTest, AnswersToAnEarlierLoadAreDropped) {
    start();
    recordApp("a", 60);
    dashboard().load();
    platform.mainQueue.drain();
    platform.storeExecutor.drain();
    store->deleteAllHistory({});
    dashboard().load();
    int changes = 0;
    const auto subscription = dashboard().observe([&changes] { ++changes; });
    settleAll();
    EXPECT_TRUE(dashboard().apps().empty());
    EXPECT_EQ(changes, 1) << "nothing but the end of the load";
}

TEST_F(DashboardTest, AnswersForADashboardThatHasGoneAreDropped) {
    recordApp("a", 60);
    dashboard().load();
    dashboard_.reset();
    settleAll();
    EXPECT_FALSE(dashboard().hasLoaded());
}

TEST_F(DashboardTest, UsageCardFollowsTheSource) {
    recordApp("a", 60);
    loaded().setUsageSource(UsageSource::websites);
    EXPECT_EQ(DashboardContent::of(dashboard()).usage.title, "By Website");
    dashboard().setUsageSource(UsageSource::apps);
    EXPECT_EQ(DashboardContent::of(dashboard()).usage.rows.at(0).id, "a#1");
}

TEST_F(DashboardTest, HoveredDayNamesItselfAboveTheChart) {
    loaded().setHoveredDay(at("2026-03-08 00:00:00"));
    EXPECT_EQ(DashboardContent::of(dashboard()).week.subtitle, "Sun 8 Mar · 0 s · 0 breaks");
    dashboard().setHoveredDay({});
    EXPECT_EQ(DashboardContent::of(dashboard()).week.subtitle, "Nothing recorded this week yet");
}

TEST_F(DashboardTest, SeeAllOpensTheSheetOfTheCardsSource) {
    dashboard().setUsageSource(UsageSource::websites);
    EXPECT_FALSE(dashboard().isShowingDetail());
    dashboard().seeAll();
    EXPECT_TRUE(dashboard().isShowingDetail());
    EXPECT_EQ(dashboard().detailSource(), UsageSource::websites);
    dashboard().closeDetail();
    EXPECT_FALSE(dashboard().isShowingDetail());
}

TEST_F(DashboardTest, PendingDetailIsTakenOnce) {
    dashboard().setUsageSource(UsageSource::websites);
    dashboard().takePendingDetail();
    EXPECT_FALSE(dashboard().isShowingDetail());
    router_.setPendingUsageDetail(UsageSource::apps);
    dashboard().takePendingDetail();
    EXPECT_TRUE(dashboard().isShowingDetail());
    EXPECT_EQ(dashboard().detailSource(), UsageSource::apps);
    EXPECT_EQ(dashboard().usageSource(), UsageSource::apps);
    EXPECT_EQ(router_.pendingUsageDetail(), std::nullopt);
    dashboard().closeDetail();
    dashboard().takePendingDetail();
    EXPECT_FALSE(dashboard().isShowingDetail());
}

class DashboardActionsTest : public ContentTest {
  protected:
    DashboardActions actions() { return {engine(), platform.ports()}; }
    std::string state() { return stateText(engine().state()); }
};

TEST_F(DashboardActionsTest, BreakNowAndItsEnd) {
    prefer("enforcementLevel", std::string("casual"));
    start();
    pass(0.5);
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:20.5");
    actions().breakNowOrEnd();
    EXPECT_EQ(engine().breaksSkippedToday(), 1);
}

TEST_F(DashboardActionsTest, EndBreakIsRefusedWhereNoSkipIsAllowed) {
    prefer("enforcementLevel", std::string("hardcore"));
    beginBreak();
    wait(10);
    actions().breakNowOrEnd();
    EXPECT_EQ(state(), "onBreak until 08:00:20");
    EXPECT_EQ(engine().breaksSkippedToday(), 0);
}

TEST_F(DashboardActionsTest, PostponeLeavesFiveMinutes) {
    start();
    actions().postpone();
    EXPECT_EQ(state(), "working until 08:05:00");
}

TEST_F(DashboardActionsTest, PauseForAnHourAndResume) {
    start();
    actions().pauseOrResume();
    EXPECT_EQ(engine().pausedUntil(), at("09:00:00"));
    pass(60);
    actions().pauseOrResume();
    EXPECT_EQ(state(), "working until 08:21:00");
}

} // namespace
} // namespace kestrelfen
