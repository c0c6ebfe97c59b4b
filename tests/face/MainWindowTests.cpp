#include "core/Settings.hpp"
#include "face/MainWindowFixture.hpp"

#include <QTest>

namespace kestrelfen {

namespace {

class MainWindowTest : public MainWindowFixture {
  protected:
    QStringList texts() { return textsIn(view_.get()).split(QLatin1Char('\n')); }

    /// A list makes its rows only with the next frame.
    void expectTexts(std::initializer_list<const char*> expected) {
        for (const char* const text : expected) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return texts().contains(QString::fromUtf8(text)); }))
                << text << " is not among\n"
                << textsIn(view_.get()).toStdString();
        }
    }

    void type(const char* text) {
        for (; *text; ++text) {
            QTest::keyClick(view_.get(), *text);
        }
        settle();
    }

    void pressKey(Qt::Key key) {
        QTest::keyClick(view_.get(), key);
        settle();
    }

    std::vector<TaskSummary> tasks() {
        std::vector<TaskSummary> all;
        delegate_.store()->tasks([&all](std::vector<TaskSummary> stored) { all = std::move(stored); });
        settle();
        return all;
    }
};

TEST_F(MainWindowTest, showsTheDashboardFirst) {
    run(300);
    open();
    expectTexts({"Screen Time",
                 "Breaks",
                 "Tasks",
                 "next break 15:00",
                 "Short break at 08:20",
                 "15:00",
                 "to next break",
                 "Break Now",
                 "Postpone 5m",
                 "Pause 1h",
                 "current stretch",
                 "5 m",
                 "0 days",
                 "Screen Time and Breaks Kept",
                 "Your 5h target",
                 "Eye Score",
                 "Rolling 7 days",
                 "Breaks kept",
                 "Longest stretch, 1h target",
                 "Days within target",
                 "By App",
                 "See All",
                 "Nothing attributed yet."});
}

TEST_F(MainWindowTest, dashboardFollowsTheTicks) {
    open();
    run(60);
    expectTexts({"next break 19:00", "19:00", "1 m"});
}

TEST_F(MainWindowTest, buttonsOfTheDashboardAct) {
    open();
    click(view_.get(), QStringLiteral("Pause 1h"));
    EXPECT_TRUE(delegate_.engine().pausedUntil().has_value());
    expectTexts({"manual", "Paused by you. Resume when ready.", "Resumes at 09:00"});
    click(view_.get(), QStringLiteral("Resume"));
    EXPECT_FALSE(delegate_.engine().state().is(BreakState::Case::paused));
    click(view_.get(), QStringLiteral("Break Now"));
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::onBreak));
}

TEST_F(MainWindowTest, pointerAndKeyboardReachEveryDay) {
    open();
    const QPoint bar = centreOf(view_.get(), QStringLiteral("Sun 8 Mar · 0 s · 0 breaks"));
    QTest::mouseMove(view_.get(), bar);
    settle();
    expectTexts({"Sun 8 Mar · 0 s · 0 breaks"});
    QTest::mouseMove(view_.get(), QPoint(5, 5));
    settle();
    EXPECT_FALSE(texts().contains(QStringLiteral("Sun 8 Mar · 0 s · 0 breaks")));
    view_->requestActivate();
    for (int count = 0; count < 40 && !texts().contains(QStringLiteral("Tue 3 Mar · 0 s · 0 breaks"));
         ++count) {
        pressKey(Qt::Key_Tab);
    }
    expectTexts({"Tue 3 Mar · 0 s · 0 breaks"});
    pressKey(Qt::Key_Right);
    expectTexts({"Wed 4 Mar · 0 s · 0 breaks"});
}

TEST_F(MainWindowTest, tabsAreChosenByTheirPills) {
    open();
    click(view_.get(), QStringLiteral("Breaks"));
    EXPECT_EQ(delegate_.router().mainTab(), MainTab::breaks);
    expectTexts(
        {"Nothing recorded in this range.", "0 rows · retention 1 year", "Today", "7 days", "30 days"});
    click(view_.get(), QStringLiteral("Tasks"));
    expectTexts({"No tasks yet", "0 of 0 done", "Add a task — return to save, escape to cancel"});
}

TEST_F(MainWindowTest, settingsButtonLeadsToTheSettings) {
    delegate_.router().setSettingsPane(SettingsPane::about);
    open();
    click(view_.get(), QStringLiteral("Open Settings"));
    EXPECT_EQ(delegate_.router().settingsPane(), SettingsPane::timing);
    EXPECT_EQ(scenes_.opened, std::vector<Scene>{Scene::settings});
}

TEST_F(MainWindowTest, historyShowsABreakWhenItHasEnded) {
    open();
    showTab(MainTab::breaks);
    run(1220);
    expectTexts({"1 row · retention 1 year", "Completed", "0:20", "08:20", "1 screen"});
}

TEST_F(MainWindowTest, creditOfABreakIsShownWhenItHasEnded) {
    addTask("Write");
    open();
    showTab(MainTab::tasks);
    expectTexts({"Write"});
    click(view_.get(), QStringLiteral("Write"));
    run(1220);
    expectTexts({"1 interval"});
}

TEST_F(MainWindowTest, dashboardCountsABreakWhenItHasEnded) {
    open();
    run(1220);
    expectTexts({"1 day"});
}

TEST_F(MainWindowTest, historyMakesOnlyTheRowsInSight) {
    for (int index = 0; index < 500; ++index) {
        delegate_.store()->recordPause({.startedAt = machine_.clock.now(),
                                        .seconds = 61,
                                        .dayStart = delegate_.engine().rollover().currentDayStart()},
                                       {});
    }
    settle();
    open();
    showTab(MainTab::breaks);
    expectTexts({"500 rows · retention 1 year", "not counted as screen time"});
    EXPECT_LT(texts().count(QStringLiteral("not counted as screen time")), 40);
    EXPECT_GT(texts().count(QStringLiteral("not counted as screen time")), 5);
}

TEST_F(MainWindowTest, taskIsWrittenChosenDoneAndCleared) {
    open();
    showTab(MainTab::tasks);
    QTest::mouseClick(view_.get(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 92));
    for (const char character : std::string("Write")) {
        QTest::keyClick(view_.get(), character);
    }
    pressKey(Qt::Key_Return);
    ASSERT_EQ(tasks().size(), 1U);
    expectTexts({"Write", "0 of 1 done"});
    click(view_.get(), QStringLiteral("Write"));
    EXPECT_EQ(Settings::activeTaskID(machine_.preferences), tasks().front().id);
    expectTexts({"Active"});
    click(view_.get(), QStringLiteral("Mark Complete: Write"));
    EXPECT_TRUE(tasks().front().completedAt.has_value());
    expectTexts({"1 of 1 done", "Clear Completed…"});
    click(view_.get(), QStringLiteral("Clear Completed…"));
    expectTexts({"Delete 1 completed task", "This can't be undone."});
    pressKey(Qt::Key_Return);
    EXPECT_EQ(tasks().size(), 1U) << "the destructive action is never the default";
    click(view_.get(), QStringLiteral("Clear Completed…"));
    click(view_.get(), QStringLiteral("Delete"));
    EXPECT_TRUE(tasks().empty());
    expectTexts({"No tasks yet"});
}

TEST_F(MainWindowTest, menuOfATaskDeletesItOnceThatIsConfirmed) {
    addTask("Read");
    open();
    showTab(MainTab::tasks);
    expectTexts({"Read"});
    const QPoint row = centreOf(view_.get(), QStringLiteral("Read"));
    QTest::mouseClick(view_.get(), Qt::RightButton, Qt::NoModifier, row);
    settle();
    expectTexts({"Make Active", "Mark Complete"});
    click(view_.get(), QStringLiteral("Delete"));
    expectTexts({"Delete task?"});
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(tasks().size(), 1U);
    QTest::mouseClick(view_.get(), Qt::RightButton, Qt::NoModifier, row);
    settle();
    click(view_.get(), QStringLiteral("Delete"));
    click(view_.get(), QStringLiteral("Delete"));
    EXPECT_TRUE(tasks().empty());
}

TEST_F(MainWindowTest, usageDetailOpensFiltersAndCloses) {
    use("Editor", 61);
    open();
    expectTexts({"Editor", "1 m"});
    click(view_.get(), QStringLiteral("See All"));
    expectTexts({"Usage Detail", "1 m across 1 app", "Uncategorised", "100%",
                 "Categories are yours to change and only affect this view."});
    click(view_.get(), QStringLiteral("Work 0"));
    expectTexts({"No apps in this category."});
    click(view_.get(), QStringLiteral("All 1"));
    click(view_.get(), QStringLiteral("Uncategorised"));
    EXPECT_FALSE(texts().contains(QStringLiteral("Reset to Suggested"))) << "nothing was chosen yet";
    click(view_.get(), QStringLiteral("Media"));
    expectTexts({"set by you"});
    click(view_.get(), QStringLiteral("Media"));
    expectTexts(
        {"Work", "Communication", "Browsing", "Media", "Utilities", "Uncategorised", "Reset to Suggested"});
    click(view_.get(), QStringLiteral("Reset to Suggested"));
    EXPECT_FALSE(texts().contains(QStringLiteral("set by you")));
    click(view_.get(), QStringLiteral("Done"));
    EXPECT_FALSE(texts().contains(QStringLiteral("Usage Detail")));
}

TEST_F(MainWindowTest, keysReachNothingInATabThatIsNotShown) {
    open();
    model_->chooseTab(QStringLiteral("tasks"));
    settle();
    click(view_.get(), QStringLiteral("Add a task — return to save, escape to cancel"));
    type("Wr");
    model_->chooseTab(QStringLiteral("breaks"));
    settle();
    type("ite");
    EXPECT_EQ(model_->tasks()->newTitle(), QStringLiteral("Wr"));
    model_->chooseTab(QStringLiteral("tasks"));
    settle();
    EXPECT_EQ(model_->tasks()->newTitle(), QStringLiteral("Wr"));
}

TEST_F(MainWindowTest, usageDetailThatWasAskedForElsewhereIsTaken) {
    open();
    delegate_.router().setPendingUsageDetail(UsageSource::websites);
    settle();
    expectTexts({"By Website", "Usage Detail",
                 "No website time in this range. Turn a browser on in Settings › Website Stats."});
    EXPECT_EQ(delegate_.router().pendingUsageDetail(), std::nullopt);
    pressKey(Qt::Key_Escape);
    EXPECT_FALSE(texts().contains(QStringLiteral("Usage Detail")));
}

TEST_F(MainWindowTest, welcomeIsShownAgainWhenItIsWishedFromOutside) {
    open();
    EXPECT_EQ(model_->onboarding(), nullptr);
    for (int round = 0; round < 2; ++round) {
        machine_.preferences.set("hasCompletedOnboarding", false);
        settle();
        expectTexts({"Welcome to Kestrelfen", "Use the Defaults — 20 / 20 / 5"});
        EXPECT_FALSE(texts().contains(QStringLiteral("Screen Time")));
        click(view_.get(), QStringLiteral("Use the Defaults — 20 / 20 / 5"));
        settle();
        expectTexts({"Screen Time", "Breaks", "Tasks"});
        EXPECT_FALSE(texts().contains(QStringLiteral("Welcome to Kestrelfen")));
        EXPECT_EQ(model_->onboarding(), nullptr);
    }
    EXPECT_EQ(Settings::boolean(machine_.preferences, "hasCompletedOnboarding", false), true);
}

TEST_F(MainWindowTest, holdsUpAtItsSmallest) {
    open();
    view_->resize(900, 560);
    settle();
    for (const MainTab tab : allCases<MainTab>()) {
        showTab(tab);
        EXPECT_FALSE(texts().isEmpty());
    }
}

} // namespace
} // namespace kestrelfen
