#include "face/FaceTest.hpp"
#include "face/FakeLayerSurfaces.hpp"

#include <QGuiApplication>
#include <QTest>

namespace kestrelfen {

namespace {

/// A desktop that has layers for what a break brings up.
class LayerTest : public FaceTest {
  protected:
    LayerTest() { windows_.setLayers(&layers_); }

    /// What is still up goes before the desktop that it is up on.
    void TearDown() override {
        delegate_.overlays().tearDownBreakWindows();
        delegate_.overlays().hideWarning();
    }

    FakeLayerSurfaces::Shown& layer(std::size_t index = 0) { return *layers_.shown.at(index); }

    void configureAll(double scale = 1) {
        for (auto* const each : layers_.shown) {
            each->configure(
                {each->width > 0 ? each->width : 1920, each->height > 0 ? each->height : 1080, scale});
        }
        settle();
    }

    /// As far as the time of the machine by hand goes; the halo breathes by a real timer.
    void holdStill() {
        Appearance::current()->setWishes({.highContrast = {}, .reducedMotion = true});
        finishFrames();
    }

    void finishFrames() {
        for (int round = 0; round < 3; ++round) {
            for (auto* const each : layers_.shown) {
                each->finishFrame();
            }
            settle();
        }
    }

    /// The window that is drawn into the layer, by its title.
    static QQuickWindow* scene(const QString& title) {
        for (QWindow* const window : QGuiApplication::allWindows()) {
            if (window->title() == title) {
                return qobject_cast<QQuickWindow*>(window);
            }
        }
        return nullptr;
    }

    static QQuickWindow* overlay() { return scene(QStringLiteral("Kestrelfen break")); }
    static QQuickWindow* card() { return scene(QStringLiteral("Kestrelfen warning")); }

    FakeLayerSurfaces layers_;
};

TEST_F(LayerTest, eachDisplayIsCoveredByALayerAndNoWindow) {
    machine_.displays.setCount(2);
    run(1200);
    ASSERT_EQ(layers_.shown.size(), 2U);
    EXPECT_EQ(layer(0).display.frame, (ScreenRect{0, 0, 1920, 1080}));
    EXPECT_EQ(layer(1).display.frame, (ScreenRect{1920, 0, 1920, 1080}));
    EXPECT_TRUE(shownWindows().empty());
    run(20);
    EXPECT_TRUE(layers_.shown.empty());
}

TEST_F(LayerTest, aDisplayWithoutALayerGetsAWindow) {
    layers_.refuses = true;
    run(1200);
    EXPECT_EQ(shownWindows().size(), 1U);
    EXPECT_TRUE(escapeKey_.isGrabbed());
    run(20);
    EXPECT_TRUE(shownWindows().empty());
    EXPECT_FALSE(escapeKey_.isGrabbed());
}

TEST_F(LayerTest, nothingIsDrawnBeforeTheDesktopAsks) {
    run(1202);
    EXPECT_EQ(layer().pictures, 0);
    configureAll();
    EXPECT_EQ(layer().pictures, 1);
    EXPECT_EQ(layer().given.size(), QSize(1920, 1080));
    EXPECT_EQ(layer().given.pixelColor(3, 3).alpha(), 255);
}

TEST_F(LayerTest, thePictureHasThePixelsOfTheDisplay) {
    run(1200);
    configureAll(2);
    EXPECT_EQ(layer().given.size(), QSize(3840, 2160));
    const QImage fine = layer().given;
    configureAll(1.5);
    layer().finishFrame();
    settle();
    ASSERT_EQ(layer().given.size(), QSize(2880, 1620));
    // The same place in both: the left end of the ring.
    EXPECT_EQ(fine.pixelColor(3840 / 2, 4).rgb(), fine.pixelColor(3840 / 2, 5).rgb() | 0xFF000000U);
}

TEST_F(LayerTest, noPictureIsGivenWhileTheLastIsNotShown) {
    run(1200);
    configureAll();
    const int before = layer().pictures;
    run(3);
    EXPECT_EQ(layer().pictures, before);
    layer().finishFrame();
    settle();
    EXPECT_EQ(layer().pictures, before + 1);
}

TEST_F(LayerTest, noPictureIsGivenWhileNothingMoves) {
    run(1200);
    configureAll();
    holdStill();
    const int before = layer().pictures;
    QTest::qWait(300);
    finishFrames();
    EXPECT_EQ(layer().pictures, before);
    run(1);
    EXPECT_EQ(layer().pictures, before + 1) << "the countdown";
}

TEST_F(LayerTest, whatIsSaidToBeNewIsAllThatIs) {
    machine_.preferences.set("appearance", std::string("light"));
    run(1200);
    configureAll();
    holdStill();
    for (int second = 0; second < 7; ++second) {
        run(1);
        finishFrames();
        EXPECT_EQ(layer().seen, layer().given) << second;
    }
    machine_.preferences.set("appearance", std::string("dark"));
    settle();
    finishFrames();
    EXPECT_LT(layer().given.pixelColor(20, 20).lightness(), 60);
    EXPECT_EQ(layer().seen, layer().given) << "another look changes the still parts as well";
}

TEST_F(LayerTest, aClickOnALayerSnoozes) {
    run(1200);
    configureAll();
    layer().click(centreOf(overlay(), QStringLiteral("Snooze 3 minutes")));
    settle();
    EXPECT_EQ(delegate_.engine().timeUntilNextBreak(), 180.0);
    EXPECT_TRUE(layers_.shown.empty());
}

TEST_F(LayerTest, aClickOnAFineLayerCountsLogicalPixels) {
    run(1200);
    configureAll(2);
    layer().click(centreOf(overlay(), QStringLiteral("Snooze 1 minute")));
    settle();
    EXPECT_EQ(delegate_.engine().timeUntilNextBreak(), 60.0);
}

TEST_F(LayerTest, theCardIsAsLargeAsItsLayoutSaysAndTenPixelsIn) {
    run(1190);
    EXPECT_EQ(layer().width, 400 + 2 * 18);
    EXPECT_EQ(layer().topMargin, 10);
    EXPECT_EQ(layer().rightMargin, 10);
    configureAll();
    EXPECT_EQ(layer().given.pixelColor(0, 0).alpha(), 0) << "there is but shadow around it";
    EXPECT_GT(layer().given.pixelColor(layer().width / 2, 40).alpha(), 240);
}

TEST_F(LayerTest, theCardIsDraggedByItsBody) {
    run(1190);
    configureAll();
    layer().point(LayerPointer::Kind::move, {200, 20});
    settle();
    layer().travel(5, 5);
    EXPECT_EQ(layer().topMargin, 10) << "nothing is pressed";
    layer().point(LayerPointer::Kind::press, {200, 20});
    settle();
    layer().travel(-30.5, 20);
    layer().travel(-0.5, 1);
    EXPECT_EQ(layer().rightMargin, 41);
    EXPECT_EQ(layer().topMargin, 31);
    layer().point(LayerPointer::Kind::release, {200, 20});
    settle();
    layer().travel(100, 100);
    EXPECT_EQ(layer().rightMargin, 41) << "it was let go";
}

TEST_F(LayerTest, aPressOnAButtonDoesNotDragTheCard) {
    run(1190);
    configureAll();
    layer().point(LayerPointer::Kind::press, centreOf(card(), QStringLiteral("Dismiss")));
    settle();
    layer().travel(-30, 20);
    EXPECT_EQ(layer().rightMargin, 10);
    EXPECT_EQ(layer().topMargin, 10);
}

TEST_F(LayerTest, theCardsButtonsWork) {
    run(1190);
    configureAll();
    layer().click(centreOf(card(), QStringLiteral("Start Now")));
    settle();
    EXPECT_TRUE(delegate_.engine().state().is(BreakState::Case::onBreak));
}

TEST_F(LayerTest, whereEscapeCostsAllKeysItIsTakenOnlyIfItDoesSomething) {
    escapeKey_.takesAll = true;
    run(1200);
    ASSERT_EQ(layers_.shown.size(), 1U);
    EXPECT_FALSE(escapeKey_.isGrabbed());
    run(20);
    machine_.preferences.set("doubleEscapeAction", std::string("skip"));
    run(1200);
    EXPECT_TRUE(escapeKey_.isGrabbed());
}

} // namespace

} // namespace kestrelfen
