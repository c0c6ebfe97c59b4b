#include "face/MainWindowFixture.hpp"
#include "face/Pseudo.hpp"
#include "face/TextFit.hpp"

#include <QTest>

namespace kestrelfen {

namespace {

const char* const longTitle =
    "Prepare the talk about honest measurements, with the figures of last year beside "
    "those of this year and a summary for those who have no time";
const char* const longName =
    "Quarterly Ledger and Invoice Reconciliation Workbench, Professional Edition for the "
    "Offices of Both Hemispheres";

/// The main window in a language that takes more room, at its smallest and as it is at first.
class MainWindowFitTest : protected Pseudo, public MainWindowFixture {
  protected:
    /// A list lays its rows out only with the next frame.
    void expectFit(const char* what) {
        for (const QSize& size : {QSize(900, 560), QSize(1040, 660)}) {
            view_->resize(size);
            settle();
            QTest::qWait(50);
            const QStringList found = misfits(view_->contentItem(), {longTitle, longName});
            EXPECT_TRUE(found.isEmpty()) << what << " at " << size.width() << ":\n"
                                         << found.join(QLatin1Char('\n')).toStdString();
        }
    }

    void expectTabFits(MainTab tab, const char* what) {
        showTab(tab);
        expectFit(what);
    }

    void press(const char* label) { click(view_.get(), pseudo(label)); }
};

TEST_F(MainWindowFitTest, EmptyTabs) {
    open();
    expectTabFits(MainTab::screenTime, "dashboard");
    expectTabFits(MainTab::breaks, "history");
    expectTabFits(MainTab::tasks, "tasks");
}

TEST_F(MainWindowFitTest, DashboardInEveryState) {
    use(longName, 400);
    open();
    expectFit("at work");
    press("Pause 1h");
    expectFit("paused for an hour");
    press("Resume");
    for (const PauseReason reason : allCases<PauseReason>()) {
        delegate_.engine().pause(reason);
        expectFit(std::string(rawValue(reason)).c_str());
        delegate_.engine().resume(machine_.clock.now());
    }
    press("Break Now");
    expectFit("on break");
}

TEST_F(MainWindowFitTest, HistoryWithRows) {
    addTask(longTitle);
    open();
    delegate_.router().setMainTab(MainTab::tasks);
    settle();
    click(view_.get(), QString::fromUtf8(longTitle));
    run(1220);
    delegate_.engine().pause(PauseReason::videoPlayback);
    run(70);
    delegate_.engine().resume(machine_.clock.now());
    run(10);
    expectTabFits(MainTab::breaks, "history");
    expectTabFits(MainTab::tasks, "tasks");
}

TEST_F(MainWindowFitTest, TasksTheirMenuAndTheirQuestions) {
    addTask(longTitle);
    open();
    expectTabFits(MainTab::tasks, "tasks");
    const QString title = QString::fromUtf8(longTitle);
    QTest::mouseClick(view_.get(), Qt::RightButton, Qt::NoModifier, centreOf(view_.get(), title));
    settle();
    expectFit("menu");
    press("Delete");
    expectFit("question of one");
    QTest::keyClick(view_.get(), Qt::Key_Escape);
    settle();
    click(view_.get(), pseudo("Mark Complete") + QStringLiteral(": ") + title);
    expectFit("with one done");
    press("Clear Completed…");
    expectFit("question of all");
}

TEST_F(MainWindowFitTest, UsageDetailAndItsMenu) {
    use(longName, 61);
    open();
    press("See All");
    expectFit("usage");
    press("Uncategorised");
    expectFit("menu of categories");
    press("Media");
    expectFit("chosen category");
    press("Media");
    expectFit("menu of categories to go back");
}

TEST_F(MainWindowFitTest, UsageDetailOfWebsites) {
    open();
    delegate_.router().setPendingUsageDetail(UsageSource::websites);
    expectFit("no websites");
}

} // namespace

} // namespace kestrelfen
