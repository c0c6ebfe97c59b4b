#include "core/Settings.hpp"
#include "face/FaceTest.hpp"
#include "face/Pseudo.hpp"
#include "face/TextFit.hpp"

#include <QTest>

namespace kestrelfen {

namespace {

const char* const longTitle =
    "Prepare the talk about honest measurements, with the figures of last year beside "
    "those of this year and a summary for those who have no time";

/// The overlays, the card and the popover, in a language that takes more room.
class TextFitTest : protected Pseudo, public FaceTest {
  protected:
    void expectFit(QQuickWindow* window, const char* what) {
        settle();
        const QStringList found = misfits(window->contentItem(), {QString::fromUtf8(longTitle)});
        EXPECT_TRUE(found.isEmpty()) << what << ":\n" << found.join(QLatin1Char('\n')).toStdString();
    }

    /// Once its window has grown with what is in it.
    void expectPopoverFits(const char* what) {
        QQuickWindow* const window = popover();
        ASSERT_TRUE(window);
        const QQuickItem* const root = window->contentItem();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return root->childItems().front()->implicitHeight() <= window->height() + 0.5; }, 3000));
        expectFit(window, what);
    }

    static QQuickWindow* popover() {
        for (QQuickWindow* const window : shownWindows()) {
            if (window->title() == QStringLiteral("Kestrelfen popover")) {
                return window;
            }
        }
        return nullptr;
    }

    void expectOverlayFits(const char* what) {
        QQuickWindow* const window = shownWindows().at(0);
        for (const QSize& size : {QSize(960, 540), QSize(1366, 768), QSize(1920, 1080), QSize(1080, 1920)}) {
            window->resize(size);
            expectFit(window, what);
        }
    }

    void addActiveTask(const std::string& title) {
        delegate_.store()->createTask({.title = title, .notes = {}, .dueOn = {}, .now = machine_.clock.now()},
                                      [this](const std::optional<TaskSummary>& task) {
                                          Settings::setActiveTaskID(machine_.preferences, task.value().id);
                                      });
        settle();
    }
};

TEST_F(TextFitTest, PopoverAtWork) {
    run(65);
    popover_.open(std::nullopt);
    expectPopoverFits("at work");
    addActiveTask(longTitle);
    expectPopoverFits("with a task");
    delegate_.engine().skipNextBreak();
    expectPopoverFits("before a long break");
}

TEST_F(TextFitTest, PopoverPausedForEveryReason) {
    popover_.open(std::nullopt);
    for (const PauseReason reason : allCases<PauseReason>()) {
        delegate_.engine().pause(reason);
        expectPopoverFits(std::string(rawValue(reason)).c_str());
        delegate_.engine().resume(machine_.clock.now());
    }
}

TEST_F(TextFitTest, PopoverDuringABreakAndItsWarning) {
    run(1195);
    popover_.open(std::nullopt);
    expectPopoverFits("warned");
    popover_.toggle(std::nullopt);
    run(6);
    popover_.open(std::nullopt);
    expectPopoverFits("on break");
}

TEST_F(TextFitTest, CardWithAndWithoutSnoozes) {
    run(1195);
    expectFit(shownWindows().at(0), "with snoozes");
}

TEST_F(TextFitTest, CardWithoutSnoozes) {
    machine_.preferences.set("snoozesPerDay", std::int64_t{0});
    run(1195);
    expectFit(shownWindows().at(0), "without snoozes");
}

TEST_F(TextFitTest, ShortBreakWhoseSkipMustBeWaitedFor) {
    run(1203);
    expectOverlayFits("waiting");
    run(4);
    expectOverlayFits("skippable");
}

TEST_F(TextFitTest, LongBreak) {
    machine_.preferences.set("longBreakEvery", std::int64_t{2});
    machine_.preferences.set("enforcementLevel", std::string("casual"));
    run(1220 + 1200 + 1);
    expectOverlayFits("long");
}

TEST_F(TextFitTest, BreakThatMayBeEnded) {
    machine_.preferences.set("longBreakEvery", std::int64_t{2});
    run(1220 + 1200 + 290);
    expectOverlayFits("near its end");
}

} // namespace

} // namespace kestrelfen
