#include "face/kit/KitTest.hpp"

namespace kestrelfen {
namespace {

QString stepper(const QString& properties) {
    return R"(StepperControl {
        property int downs: 0
        property int ups: 0
        x: 20; y: 20; value: "5 min"; spokenLabel: "Long break"
        decrementLabel: "Decrease Long break"; incrementLabel: "Increase Long break"
        onDecrement: ++downs
        onIncrement: ++ups
        )" +
           properties + "}";
}

QString toggle(const QString& properties) {
    return "GlassToggle { x: 20; y: 20; spokenLabel: 'Video'; property int clicks: 0; onToggled: { ++clicks; "
           "isOn = "
           "!isOn } " +
           properties + "}";
}

QString pills(const QString& properties) {
    return R"(SegmentedPills {
        x: 20; y: 20; selection: 1; spokenLabel: "Choice"
        property int clicks: 0
        onChosen: value => { ++clicks; selection = value }
        options: [{value: 1, label: "One"}, {value: 2, label: "Two"}, {value: 3, label: "Three"}]
        )" +
           properties + "}";
}

class ControlTest : public KitTest {
  protected:
    QPointF topLeft(const QString& spokenLabel) const { return named(spokenLabel)->mapToScene(QPointF()); }

    /// Near the left edge, beside the words.
    QColor fillOf(const QString& spokenLabel) {
        const QPointF corner = topLeft(spokenLabel);
        return pixel(corner.x() + 3, corner.y() + named(spokenLabel)->height() / 2);
    }

    QColor onGroup(const QColor& fill) const { return over(fill, over(token("sunk"), backdrop)); }

    static QColor share(QColor color, double alpha) {
        color.setAlphaF(static_cast<float>(alpha));
        return color;
    }
};

TEST_F(ControlTest, aStepperHasItsSizes) {
    const QQuickItem* const item = show(stepper(""));
    EXPECT_EQ(item->implicitWidth(), 3 + 26 + 2 + 62 + 2 + 26 + 3);
    EXPECT_EQ(item->implicitHeight(), 3 + 24 + 3);
    EXPECT_EQ(topLeft("Decrease Long break"), QPointF(23, 23));
    EXPECT_EQ(topLeft("Increase Long break"), QPointF(23 + 26 + 2 + 62 + 2, 23));
}

TEST_F(ControlTest, aLongValueWidensTheStepper) {
    const QQuickItem* const item = show(stepper(""));
    root_->setProperty("value", "a much longer value");
    picture();
    EXPECT_GT(item->implicitWidth(), 124 + 20);
}

TEST_F(ControlTest, aStepperRaisesTheButtonsThatItOffers) {
    show(stepper("canIncrement: false"));
    EXPECT_TRUE(looks(fillOf("Decrease Long break"), onGroup(token("glass"))));
    EXPECT_TRUE(looks(fillOf("Increase Long break"), over(token("sunk"), backdrop)));
    EXPECT_TRUE(looks(pixel(20, 35), over(token("sunk"), backdrop))) << "no border";
    EXPECT_TRUE(looks(pixel(20, 20), backdrop)) << "the corner";
}

TEST_F(ControlTest, aStepperStepsOnlyAsItsFlagsSay) {
    show(stepper("canIncrement: false"));
    click(named("Decrease Long break"));
    click(named("Increase Long break"));
    EXPECT_EQ(count("downs"), 1);
    EXPECT_EQ(count("ups"), 0);
}

TEST_F(ControlTest, beingInvalidChangesTheColoursOnly) {
    show(stepper("isInvalid: true"));
    const QColor fill = over(share(token("amber"), 0.14), backdrop);
    EXPECT_TRUE(looks(pixel(20, 35), over(share(token("amber"), 0.4), fill)));
    EXPECT_TRUE(looks(pixel(22, 35), fill));
    click(named("Decrease Long break"));
    click(named("Increase Long break"));
    EXPECT_EQ(count("downs"), 1);
    EXPECT_EQ(count("ups"), 1);
    root_->setProperty("canDecrement", false);
    click(named("Decrease Long break"));
    EXPECT_EQ(count("downs"), 1);
}

TEST_F(ControlTest, aStepperGoesOnWhileItIsHeld) {
    show(stepper(""));
    const QPoint plus(static_cast<int>(topLeft("Increase Long break").x()) + 13, 35);
    QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, plus);
    EXPECT_EQ(count("ups"), 1) << "at once";
    EXPECT_TRUE(QTest::qWaitFor([this] { return count("ups") >= 3; }, 3000));
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, plus);
    const int before = count("ups");
    QTest::qWait(250);
    EXPECT_EQ(count("ups"), before);
}

TEST_F(ControlTest, aStepperStopsWhereItsValueEnds) {
    show(stepper("canIncrement: ups < 2"));
    const QPoint plus(static_cast<int>(topLeft("Increase Long break").x()) + 13, 35);
    QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, plus);
    QTest::qWait(900);
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, plus);
    EXPECT_EQ(count("ups"), 2);
}

TEST_F(ControlTest, aSwitchHasItsSizeAndItsKnobAtItsEnd) {
    const QQuickItem* const item = show(toggle("isOn: true"));
    EXPECT_EQ(item->implicitWidth(), 42);
    EXPECT_EQ(item->implicitHeight(), 25);
    EXPECT_TRUE(looks(pixel(25, 32), token("accent")));
    EXPECT_TRUE(looks(pixel(20 + 42 - 5, 32), Qt::white));
    EXPECT_TRUE(looks(pixel(20 + 42 - 2, 32), token("accent"), 14)) << "inset by 2.5, with its shadow there";
    EXPECT_TRUE(looks(pixel(20 + 42 - 21, 32), Qt::white));
}

TEST_F(ControlTest, aSwitchThatIsOffIsSunkWithARule) {
    show(toggle("isOn: false"));
    const QColor sunk = over(token("sunk"), backdrop);
    EXPECT_TRUE(looks(pixel(55, 32), sunk));
    EXPECT_TRUE(looks(pixel(41, 20), over(token("rule"), sunk)));
    EXPECT_TRUE(looks(pixel(25, 32), Qt::white));
}

TEST_F(ControlTest, aClickAnywhereOnASwitchFlipsIt) {
    show(toggle("isOn: false"));
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(22, 32));
    EXPECT_TRUE(root_->property("isOn").toBool());
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(60, 32));
    EXPECT_FALSE(root_->property("isOn").toBool());
    EXPECT_EQ(count("clicks"), 2);
}

TEST_F(ControlTest, aMirroredSwitchHasItsKnobAtTheOtherEnd) {
    show("Item { LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; " +
         toggle("isOn: true") + "}");
    EXPECT_TRUE(looks(pixel(25, 32), Qt::white));
    EXPECT_TRUE(looks(pixel(57, 32), token("accent")));
}

TEST_F(ControlTest, pillsHaveTheirSizesAndColours) {
    const QQuickItem* const row = show(pills(""));
    double widths = 0;
    for (const char* const name : {"One", "Two", "Three"}) {
        widths += named(name)->width();
    }
    EXPECT_EQ(row->implicitWidth(), widths + 2 * 3 + 2 * 3);
    EXPECT_EQ(topLeft("One"), QPointF(23, 23));
    EXPECT_EQ(topLeft("Two").x(), 23 + named("One")->width() + 3);
    EXPECT_TRUE(looks(fillOf("One"), onGroup(token("glass"))));
    EXPECT_TRUE(looks(fillOf("Two"), over(token("sunk"), backdrop)));
}

TEST_F(ControlTest, anAccentedSelectionIsWhiteOnAccent) {
    show(pills("accentSelection: true"));
    EXPECT_TRUE(looks(fillOf("One"), token("accent")));
    click(named("Three"));
    EXPECT_EQ(root_->property("selection").toInt(), 3);
    EXPECT_TRUE(looks(fillOf("Three"), token("accent")));
    EXPECT_TRUE(looks(fillOf("One"), over(token("sunk"), backdrop)));
}

TEST_F(ControlTest, aSelectionThatIsNoOptionSelectsNothing) {
    show(pills(""));
    root_->setProperty("selection", 9);
    EXPECT_TRUE(looks(fillOf("One"), over(token("sunk"), backdrop)));
}

TEST_F(ControlTest, mirroredPillsRunFromTheRight) {
    show("Item { width: 400; height: 100; LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: "
         "true; " +
         pills("") + "}");
    EXPECT_GT(topLeft("One").x(), topLeft("Two").x());
    EXPECT_GT(topLeft("Two").x(), topLeft("Three").x());
}

} // namespace
} // namespace kestrelfen
