#include "face/FaceTest.hpp"

#include <QTest>

#include <algorithm>

namespace kestrelfen {

namespace {

void connectFrames(const QQuickWindow* window, int& frames) {
    QObject::connect(window, &QQuickWindow::afterRendering, window, [&frames] { ++frames; });
}

TEST_F(FaceTest, aBreakCoversEachDisplayWithAWindowThatTakesNoFocus) {
    machine_.displays.setCount(2);
    run(1200);
    const auto windows = shownWindows();
    ASSERT_EQ(windows.size(), 2U);
    EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, 1920, 1080));
    EXPECT_EQ(windows[1]->geometry(), QRect(1920, 0, 1920, 1080));
    for (const QQuickWindow* const window : windows) {
        EXPECT_TRUE(window->flags().testFlag(Qt::BypassWindowManagerHint));
        EXPECT_TRUE(window->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    }
    run(20);
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(FaceTest, whatAnOverlayNeedsIsThereBeforeItIsDue) {
    machine_.preferences.set("warningHUDEnabled", false);
    run(1194);
    EXPECT_FALSE(views_.isWarm());
    run(1);
    EXPECT_TRUE(views_.isWarm());
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(FaceTest, theOverlayShowsItsTextsAndCountsDown) {
    run(1203);
    const QString texts = textsIn(shownWindows().at(0));
    for (const char* const text : {"0:17", "Look 20 feet away", "Skip in 2", "+1 min", "+3 min", "+5 min",
                                   "covering 1 display · esc does nothing"}) {
        EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text << " is not among\n"
                                                             << texts.toStdString();
    }
}

TEST_F(FaceTest, aLongBreakShowsItsCycle) {
    machine_.preferences.set("longBreakEvery", std::int64_t{2});
    machine_.preferences.set("enforcementLevel", std::string("casual"));
    run(1220 + 1200);
    run(1);
    const QString texts = textsIn(shownWindows().at(0));
    for (const char* const text : {"Long break · every 4th cycle", "Stand up and walk",
                                   "2 work intervals since the last long break", "Skip This Break"}) {
        EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text << " is not among\n"
                                                             << texts.toStdString();
    }
    EXPECT_FALSE(texts.contains(QStringLiteral("covering")));
    const auto dots = [] {
        const auto items = itemsIn(shownWindows().at(0));
        return std::count_if(items.begin(), items.end(),
                             [](const QQuickItem* item) { return item->property("isLast").isValid(); });
    };
    EXPECT_EQ(dots(), 2);
    click(shownWindows().at(0), QStringLiteral("Skip"));
    EXPECT_EQ(delegate_.engine().breaksSkippedToday(), 1);
}

TEST_F(FaceTest, theCardsLineLiesOnItsFill) {
    run(1190);
    QQuickWindow* const card = shownWindows().at(0);
    const QColor line = card->grabWindow().pixelColor(18, card->height() / 2);
    EXPECT_GT(line.lightness(), 180) << "the desktop would shine through";
    EXPECT_LT(line.lightness(), 225);
}

TEST_F(FaceTest, noFrameIsDrawnWhileNothingMoves) {
    popover_.open(std::nullopt);
    Appearance::current()->setWishes({.highContrast = {}, .reducedMotion = true});
    run(1190);
    int frames = 0;
    for (const QQuickWindow* const window : shownWindows()) {
        connectFrames(window, frames);
    }
    QTest::qWait(200);
    frames = 0;
    QTest::qWait(400);
    EXPECT_EQ(frames, 0);
    run(1);
    EXPECT_TRUE(QTest::qWaitFor([&frames] { return frames > 0; })) << "but a second that passes is";
}

TEST_F(FaceTest, aLowDisplayShowsTheWholeOverlaySmaller) {
    machine_.preferences.set("longBreakEvery", std::int64_t{2});
    run(1220 + 1200);
    QQuickWindow* const window = shownWindows().at(0);
    window->resize(960, 540);
    settle();
    EXPECT_LT(centreOf(window, QStringLiteral("Snooze 1 minute")).y(), 540 - 48);
    click(window, QStringLiteral("Snooze 1 minute"));
    EXPECT_EQ(delegate_.engine().timeUntilNextBreak(), 60.0);
}

TEST_F(FaceTest, aClickOnASnoozeSnoozes) {
    run(1200);
    click(shownWindows().at(0), QStringLiteral("Snooze 3 minutes"));
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::working));
    EXPECT_EQ(delegate_.engine().timeUntilNextBreak(), 180.0);
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(FaceTest, aClickThatHasBegunOutlivesAChangeOfItsNeighbours) {
    machine_.preferences.set("breakDurationSeconds", 60.0);
    delegate_.engine().skipNextBreak();
    run(1200 + 4);
    QQuickWindow* const window = shownWindows().at(0);
    const QPoint place = centreOf(window, QStringLiteral("Snooze 1 minute"));
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    run(1);
    ASSERT_TRUE(textsIn(window).contains(QStringLiteral("Skip This Break")));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place);
    settle();
    EXPECT_EQ(delegate_.engine().timeUntilNextBreak(), 60.0);
}

TEST_F(FaceTest, theWaitLabelTakesNoClicks) {
    run(1200);
    click(shownWindows().at(0), QStringLiteral("Skip in 5"));
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::onBreak));
    run(5);
    click(shownWindows().at(0), QStringLiteral("Skip This Break"));
    EXPECT_EQ(delegate_.engine().breaksSkippedToday(), 1);
}

TEST_F(FaceTest, escapeIsHeardOnlyWhileAnOverlayIsUp) {
    machine_.preferences.set("doubleEscapeAction", std::string("snooze"));
    machine_.displays.setCount(2);
    EXPECT_FALSE(escapeKey_.isGrabbed());
    run(1200);
    ASSERT_TRUE(escapeKey_.isGrabbed());
    run(1);
    escapeKey_.press();
    escapeKey_.press();
    settle();
    EXPECT_EQ(delegate_.engine().snoozesOnCurrentBreak(), 1);
    EXPECT_FALSE(escapeKey_.isGrabbed());
}

TEST_F(FaceTest, escapeInTheFirstHalfSecondWasMeantForSomethingElse) {
    machine_.preferences.set("enforcementLevel", std::string("casual"));
    machine_.preferences.set("doubleEscapeAction", std::string("skip"));
    run(1200);
    machine_.clock.advance(0.4999);
    escapeKey_.press();
    machine_.clock.advance(0.0001);
    escapeKey_.press();
    settle();
    ASSERT_TRUE(delegate_.engine().state().is(BreakState::Case::onBreak)) << "but one of them counts";
    escapeKey_.press();
    settle();
    EXPECT_EQ(delegate_.engine().breaksSkippedToday(), 1);
}

TEST_F(FaceTest, escapeIsHeardAfterTheClockWasSetBack) {
    machine_.preferences.set("enforcementLevel", std::string("casual"));
    machine_.preferences.set("doubleEscapeAction", std::string("skip"));
    run(1200);
    machine_.clock.advance(-30);
    escapeKey_.press();
    escapeKey_.press();
    settle();
    EXPECT_EQ(delegate_.engine().breaksSkippedToday(), 1);
}

TEST_F(FaceTest, noButtonHasTheFocus) {
    const auto focus = [] {
        const QQuickItem* const item = shownWindows().at(0)->activeFocusItem();
        return item ? item->property("spokenLabel").toString() : QString();
    };
    run(1190);
    EXPECT_EQ(focus(), QString());
    run(10);
    EXPECT_EQ(focus(), QString());
}

TEST_F(FaceTest, aSnoozeOfTheCardSaysWhatItDoesOnceThePointerRestsOnIt) {
    run(1190);
    QQuickWindow* const card = shownWindows().at(0);
    for (const char* const spoken : {"Snooze 1 minute", "Snooze 3 minutes", "Snooze 5 minutes"}) {
        const QString words = QString::fromUtf8(spoken);
        QTest::mouseMove(card, centreOf(card, words));
        settle();
        EXPECT_FALSE(textsIn(card).contains(words));
        EXPECT_TRUE(QTest::qWaitFor([&] { return textsIn(card).contains(words); }, 2000)) << spoken;
    }
    QTest::mouseMove(card, centreOf(card, QStringLiteral("Start Now")));
    settle();
    EXPECT_FALSE(textsIn(card).contains(QStringLiteral("Snooze 5 minutes")));
}

TEST_F(FaceTest, theCardPulsesUnlessMotionIsReduced) {
    run(1190);
    QQuickWindow* const card = shownWindows().at(0);
    const QImage before = card->grabWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return card->grabWindow() != before; }, 3000));
    Appearance::current()->setWishes({.highContrast = {}, .reducedMotion = true});
    const QImage still = card->grabWindow();
    QTest::qWait(500);
    EXPECT_EQ(card->grabWindow(), still);
}

TEST_F(FaceTest, theWarningCardShowsItsTextsAndItsButtonsWork) {
    run(1195);
    QQuickWindow* const card = shownWindows().at(0);
    const QString texts = textsIn(card);
    for (const char* const text : {"Break in 5 seconds", "Find a stopping point. Dismissing keeps the break.",
                                   "+1", "+3", "+5", "Snooze: +1, +3 or +5 minutes"}) {
        EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text << " is not among\n"
                                                             << texts.toStdString();
    }
    click(card, QStringLiteral("Dismiss"));
    EXPECT_TRUE(shownWindows().empty());
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::working));
}

TEST_F(FaceTest, theWarningCardStandsTenPixelsInFromTheTopRight) {
    compositor_.blending = false;
    run(1190);
    const QQuickWindow* const card = shownWindows().at(0);
    EXPECT_EQ(card->width(), 400);
    EXPECT_EQ(card->position(), QPoint(1920 - 400 - 10, 10));
}

TEST_F(FaceTest, withoutASnoozeTwoButtonsShareTheCard) {
    machine_.preferences.set("snoozesPerDay", std::int64_t{0});
    run(1190);
    QQuickWindow* const card = shownWindows().at(0);
    EXPECT_FALSE(textsIn(card).contains(QStringLiteral("Snooze")));
    const int apart =
        centreOf(card, QStringLiteral("Start Now")).x() - centreOf(card, QStringLiteral("Dismiss")).x();
    EXPECT_EQ(apart, (364 - 8) / 2 + 8);
    click(card, QStringLiteral("Start Now"));
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::onBreak));
}

TEST_F(FaceTest, theAppearanceChangesLive) {
    machine_.preferences.set("appearance", std::string("light"));
    run(1200);
    QQuickWindow* const window = shownWindows().at(0);
    EXPECT_GT(window->grabWindow().pixelColor(20, 20).lightness(), 200);
    machine_.preferences.set("appearance", std::string("dark"));
    settle();
    EXPECT_LT(window->grabWindow().pixelColor(20, 20).lightness(), 60);
}

TEST_F(FaceTest, thePopoverPausesResumesAndQuits) {
    popover_.toggle(std::nullopt);
    settle();
    QQuickWindow* const popover = shownWindows().at(0);
    EXPECT_TRUE(textsIn(popover).contains(QStringLiteral("20 min")));
    click(popover, QStringLiteral("Pause"));
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::paused));
    EXPECT_TRUE(textsIn(popover).contains(QStringLiteral("Paused by you. Resume when ready.")));
    click(popover, QStringLiteral("Resume"));
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::working));
    click(popover, QStringLiteral("Quit Kestrelfen"));
    EXPECT_EQ(quits_, 1);
    settle();
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(FaceTest, escapeClosesThePopover) {
    popover_.toggle(std::nullopt);
    settle();
    QTest::keyClick(shownWindows().at(0), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(shownWindows().empty());
}

} // namespace

} // namespace kestrelfen
