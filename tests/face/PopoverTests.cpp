#include "core/Settings.hpp"
#include "face/FaceTest.hpp"
#include "shell/desktop/PopoverPlacement.hpp"

#include <QTest>

namespace kestrelfen {

namespace {

using Edge = PanelStrip::Edge;

class PopoverTest : public FaceTest {
  protected:
    QQuickWindow* opened() {
        popover_.open(std::nullopt);
        settle();
        for (QQuickWindow* const window : shownWindows()) {
            if (window->title() == QStringLiteral("Kestrelfen popover")) {
                return window;
            }
        }
        return nullptr;
    }

    static QString focused(const QQuickWindow* window) {
        const QQuickItem* const item = window->activeFocusItem();
        return item ? item->property("spokenLabel").toString() : QString();
    }

    void press(QQuickWindow* window, Qt::Key key) {
        QTest::keyClick(window, key);
        settle();
    }

    void addActiveTask(const std::string& title) {
        delegate_.store()->createTask({.title = title, .notes = {}, .dueOn = {}, .now = machine_.clock.now()},
                                      [this](const std::optional<TaskSummary>& task) {
                                          Settings::setActiveTaskID(machine_.preferences, task.value().id);
                                      });
        settle();
    }
};

TEST_F(PopoverTest, isAsWideAsItIsSaidToBe) {
    compositor_.blending = false;
    EXPECT_EQ(opened()->width(), 352);
}

TEST_F(PopoverTest, tellsOfTheDay) {
    run(65);
    const QString texts = textsIn(opened());
    for (const char* const text :
         {"Today", "Breaks completed", "0 / 0", "Screen time", "1 m", "Skipped", "0"}) {
        EXPECT_TRUE(texts.split(QLatin1Char('\n')).contains(QString::fromUtf8(text)))
            << text << " is not among\n"
            << texts.toStdString();
    }
    EXPECT_FALSE(texts.contains(QStringLiteral("Active task")));
}

TEST_F(PopoverTest, showsTheActiveTaskAndItsCredits) {
    addActiveTask("Draft the notes");
    QQuickWindow* const window = opened();
    EXPECT_TRUE(textsIn(window).contains(QStringLiteral("Draft the notes")));
    EXPECT_TRUE(textsIn(window).contains(QStringLiteral("×0")));
    EXPECT_EQ(delegate_.engine().activeTaskTitle(), "Draft the notes");
}

TEST_F(PopoverTest, growsWithTheActiveTask) {
    const int without = opened()->height();
    popover_.toggle(std::nullopt);
    addActiveTask("a");
    QQuickWindow* const window = opened();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->height() > without + 40; }, 3000));
}

TEST_F(PopoverTest, aBreakThatIsCompletedWhileItIsUpIsCredited) {
    addActiveTask("a");
    run(1200);
    QQuickWindow* const window = opened();
    run(20);
    EXPECT_TRUE(textsIn(window).contains(QStringLiteral("1 / 1")));
    EXPECT_TRUE(textsIn(window).contains(QStringLiteral("×1"))) << textsIn(window).toStdString();
}

TEST_F(PopoverTest, theFooterLeadsToTheWindowsAndClosesThePopover) {
    click(opened(), QStringLiteral("Break History"));
    EXPECT_EQ(scenes_.opened, std::vector{Scene::main});
    EXPECT_EQ(delegate_.router().mainTab(), MainTab::breaks);
    EXPECT_TRUE(shownWindows().empty());
    click(opened(), QStringLiteral("Settings"));
    EXPECT_EQ(scenes_.opened, (std::vector{Scene::main, Scene::settings}));
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(PopoverTest, noButtonHasTheFocusAtFirst) {
    EXPECT_EQ(focused(opened()), QString());
}

TEST_F(PopoverTest, theKeyboardReachesEveryButtonInOrder) {
    run(1195);
    QQuickWindow* const window = opened();
    QStringList reached;
    for (int step = 0; step < 9; ++step) {
        press(window, Qt::Key_Tab);
        reached.append(focused(window));
    }
    EXPECT_EQ(
        reached.join(QLatin1Char(',')).toStdString(),
        "Pause,Snooze,Break Now,Screen Time,App Usage Detail,Tasks,Break History,Settings,Quit Kestrelfen");
}

TEST_F(PopoverTest, arrowsMoveTheFocusAndSpaceAndReturnPress) {
    QQuickWindow* const window = opened();
    press(window, Qt::Key_Right);
    EXPECT_EQ(focused(window), QStringLiteral("Pause"));
    press(window, Qt::Key_Space);
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::paused));
    press(window, Qt::Key_Return);
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::working));
    press(window, Qt::Key_Down);
    press(window, Qt::Key_Down);
    EXPECT_EQ(focused(window), QStringLiteral("Break Now"));
    press(window, Qt::Key_Left);
    EXPECT_EQ(focused(window), QStringLiteral("Skip"));
    press(window, Qt::Key_Up);
    EXPECT_EQ(focused(window), QStringLiteral("Pause"));
}

TEST_F(PopoverTest, aPressBesideTheCardClosesIt) {
    QQuickWindow* const window = opened();
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    settle();
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(PopoverTest, aPressOnTheCardItselfDoesNot) {
    QQuickWindow* const window = opened();
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
    settle();
    EXPECT_FALSE(shownWindows().empty());
}

TEST_F(PopoverTest, theBeginningOfABreakClosesIt) {
    run(1199);
    ASSERT_NE(opened(), nullptr);
    run(1);
    ASSERT_EQ(shownWindows().size(), 1U);
    EXPECT_EQ(shownWindows().front()->title(), QStringLiteral("Kestrelfen break"));
}

TEST_F(PopoverTest, inABreakItLiesAboveTheOverlaysAndAPressOnOneClosesIt) {
    run(1200);
    popover_.open(std::nullopt);
    settle();
    const auto windows = shownWindows();
    ASSERT_EQ(windows.size(), 2U);
    QQuickWindow* const popover = windows[1];
    EXPECT_EQ(popover->title(), QStringLiteral("Kestrelfen popover"));
    EXPECT_TRUE(popover->flags().testFlag(Qt::BypassWindowManagerHint));
    QTest::mouseClick(windows[0], Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    settle();
    EXPECT_EQ(shownWindows().size(), 1U);
}

TEST_F(PopoverTest, aSymbolSaysWhereItLeadsOnceThePointerRestsOnIt) {
    QQuickWindow* const window = opened();
    QTest::mouseMove(window, centreOf(window, QStringLiteral("Tasks")));
    EXPECT_FALSE(textsIn(window).contains(QStringLiteral("Tasks")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return textsIn(window).contains(QStringLiteral("Tasks")); }, 3000));
}

TEST_F(PopoverTest, keepsOffThePanelThatItsItemIsIn) {
    compositor_.blending = false;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    panels_.all = {{Edge::bottom, {0, screen.height() - 40, screen.width(), 40}}};
    popover_.open(TrayPoint{screen.width() - 50, screen.height() - 20});
    settle();
    const QWindow* const window = shownWindows().front();
    EXPECT_EQ(window->y() + window->height(), screen.height() - 40 - 6);
}

TEST(PopoverPlacement, standsBesideItsItemTowardsTheMiddle) {
    const QRect free(0, 30, 1000, 770);
    EXPECT_EQ(popoverPosition({200, 300}, {free, {500, 12}}), QPoint(400, 36));
    EXPECT_EQ(popoverPosition({200, 300}, {free, {990, 12}}), QPoint(794, 36));
    EXPECT_EQ(popoverPosition({200, 300}, {free, {3, 790}}), QPoint(6, 484));
    EXPECT_EQ(popoverPosition({200, 300}, {free, {500, 100}}), QPoint(400, 106));
}

TEST(PopoverPlacement, panelsTakeTheirEdges) {
    const QRect screen(100, 0, 1000, 800);
    EXPECT_EQ(freeOfPanels(screen, {}), screen);
    EXPECT_EQ(freeOfPanels(screen, {{Edge::top, {100, 0, 1000, 28}}, {Edge::left, {100, 0, 48, 800}}}),
              QRect(148, 28, 952, 772));
    EXPECT_EQ(freeOfPanels(screen, {{Edge::bottom, {100, 760, 1000, 40}}, {Edge::right, {1050, 0, 50, 800}}}),
              QRect(100, 0, 950, 760));
}

} // namespace

} // namespace kestrelfen
