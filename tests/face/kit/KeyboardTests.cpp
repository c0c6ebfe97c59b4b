#include "face/kit/KitTest.hpp"

namespace kestrelfen {
namespace {

constexpr char controls[] = R"(Column {
    property int clicks: 0
    property int steps: 0
    property int choice: 2
    property bool isOn: false
    spacing: 10; padding: 20
    PrimaryAction { label: "First"; onClicked: ++parent.clicks }
    SecondaryAction { label: "Second"; enabled: false }
    StepperControl {
        value: "1"; spokenLabel: "Steps"; canIncrement: parent.steps < 3
        onIncrement: ++parent.steps
        onDecrement: --parent.steps
    }
    GlassToggle { isOn: parent.isOn; spokenLabel: "Switch"; onToggled: parent.isOn = !parent.isOn }
    SegmentedPills {
        selection: parent.choice; spokenLabel: "Choice"
        options: [{value: 1, label: "One"}, {value: 2, label: "Two"}, {value: 3, label: "Three"}]
        onChosen: value => parent.choice = value
    }
    PlainLink { label: "Last"; onClicked: ++parent.clicks }
})";

class KeyboardTest : public KitTest {
  protected:
    void showControls() { show(controls); }

    void tabTo(const char* spokenLabel) {
        for (int times = 0; times < 10 && !hasKeyboard(spokenLabel); ++times) {
            press(Qt::Key_Tab);
        }
        ASSERT_TRUE(hasKeyboard(spokenLabel)) << spokenLabel;
    }

    /// Whether the ring of the control is drawn.
    bool isRinged(const QString& spokenLabel) const {
        for (const QQuickItem* const child : named(spokenLabel)->childItems()) {
            if (QString(child->metaObject()->className()).startsWith("FocusRing")) {
                return child->isVisible();
            }
        }
        ADD_FAILURE() << spokenLabel.toStdString() << " has no ring";
        return false;
    }
};

TEST_F(KeyboardTest, nothingHasTheKeyboardAtFirst) {
    showControls();
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    EXPECT_EQ(count("clicks"), 0);
    EXPECT_FALSE(isRinged("First"));
}

TEST_F(KeyboardTest, tabGoesThroughTheControlsInOrderAndBack) {
    showControls();
    for (const char* const name : {"First", "Steps", "Switch", "Two", "Last", "First"}) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(hasKeyboard(name)) << name;
    }
    press(Qt::Key_Backtab);
    EXPECT_TRUE(hasKeyboard("Last"));
    press(Qt::Key_Backtab);
    EXPECT_TRUE(hasKeyboard("Two"));
}

TEST_F(KeyboardTest, returnEnterAndSpacePress) {
    showControls();
    tabTo("First");
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    press(Qt::Key_Space);
    EXPECT_EQ(count("clicks"), 3);
    press(Qt::Key_A);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(count("clicks"), 3);
}

TEST_F(KeyboardTest, aKeyThatIsHeldPressesOnce) {
    showControls();
    tabTo("First");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&window_, &repeated);
        QKeyEvent released(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&window_, &released);
    }
    EXPECT_EQ(count("clicks"), 0);
}

TEST_F(KeyboardTest, spaceThatIsLetGoElsewherePressesNothing) {
    showControls();
    tabTo("First");
    QTest::keyPress(&window_, Qt::Key_Space);
    press(Qt::Key_Tab);
    QTest::keyRelease(&window_, Qt::Key_Space);
    EXPECT_EQ(count("clicks"), 0);
    EXPECT_FALSE(root_->property("isOn").toBool());
}

TEST_F(KeyboardTest, theRingFollowsTheKeyboardAndGoesWithThePointer) {
    showControls();
    tabTo("Switch");
    EXPECT_TRUE(isRinged("Switch"));
    EXPECT_FALSE(isRinged("First"));
    click(named("First"));
    EXPECT_FALSE(isRinged("Switch"));
    press(Qt::Key_Tab);
    EXPECT_TRUE(isRinged("Two"));
}

TEST_F(KeyboardTest, theRingLiesAroundTheControlInAccent) {
    show("Item { GlassToggle { x: 40; y: 40; isOn: false; spokenLabel: 'Switch' } }");
    EXPECT_TRUE(looks(pixel(61, 37), backdrop));
    press(Qt::Key_Tab);
    EXPECT_TRUE(looks(pixel(61, 37), token("accent")));
    EXPECT_TRUE(looks(pixel(61, 39), backdrop)) << "a gap";
    EXPECT_TRUE(looks(pixel(61, 35), backdrop));
}

TEST_F(KeyboardTest, arrowsStepWithinTheFlags) {
    showControls();
    tabTo("Steps");
    for (int times = 0; times < 5; ++times) {
        press(Qt::Key_Up);
    }
    EXPECT_EQ(count("steps"), 3);
    press(Qt::Key_Right);
    EXPECT_EQ(count("steps"), 3);
    press(Qt::Key_Down);
    press(Qt::Key_Left);
    EXPECT_EQ(count("steps"), 1);
}

TEST_F(KeyboardTest, anArrowThatIsHeldGoesOn) {
    showControls();
    tabTo("Steps");
    for (int times = 0; times < 2; ++times) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&window_, &repeated);
    }
    EXPECT_EQ(count("steps"), 2);
}

TEST_F(KeyboardTest, spaceFlipsASwitch) {
    showControls();
    tabTo("Switch");
    press(Qt::Key_Space);
    EXPECT_TRUE(root_->property("isOn").toBool());
    press(Qt::Key_Return);
    EXPECT_FALSE(root_->property("isOn").toBool());
}

TEST_F(KeyboardTest, arrowsGoFromPillToPillAndStopAtTheEnds) {
    showControls();
    tabTo("Two");
    press(Qt::Key_Right);
    EXPECT_EQ(count("choice"), 3);
    EXPECT_TRUE(hasKeyboard("Three"));
    press(Qt::Key_Right);
    EXPECT_EQ(count("choice"), 3);
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_EQ(count("choice"), 1);
    EXPECT_TRUE(hasKeyboard("One"));
}

TEST_F(KeyboardTest, pillThatIsNoLongerChosenIsAStopUntilTheKeyboardLeavesIt) {
    showControls();
    tabTo("Two");
    root_->setProperty("choice", 3);
    EXPECT_TRUE(hasKeyboard("Two"));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    ASSERT_TRUE(hasKeyboard("Last"));
    press(Qt::Key_Backtab);
    EXPECT_TRUE(hasKeyboard("Three"));
    press(Qt::Key_Backtab);
    EXPECT_TRUE(hasKeyboard("Switch"));
}

TEST_F(KeyboardTest, cardThatIsNoLongerChosenIsAStopUntilTheKeyboardLeavesIt) {
    show(R"(Row {
        property int choice: 0
        SelectableCard { title: "Left"; isSelected: parent.choice === 0; width: 100 }
        SelectableCard { title: "Right"; isSelected: parent.choice === 1; width: 100 }
    })");
    tabTo("Left");
    root_->setProperty("choice", 1);
    EXPECT_TRUE(hasKeyboard("Left"));
    press(Qt::Key_Tab);
    EXPECT_TRUE(hasKeyboard("Right"));
    press(Qt::Key_Tab);
    EXPECT_TRUE(hasKeyboard("Right"));
}

TEST_F(KeyboardTest, mirroredTheArrowsGoTheOtherWay) {
    showControls();
    root_->setParentItem(nullptr);
    show(QString("Item { property alias choice: column.choice; property alias steps: column.steps; "
                 "LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; ") +
         QString(controls).replace("Column {", "Column { id: column;") + "}");
    tabTo("Steps");
    press(Qt::Key_Left);
    EXPECT_EQ(count("steps"), 1);
    tabTo("Two");
    press(Qt::Key_Left);
    EXPECT_EQ(count("choice"), 3);
}

TEST_F(KeyboardTest, aTextFieldTakesWordsReturnAndEscape) {
    show(R"(TextInputField {
        property int accepts: 0
        property int cancels: 0
        width: 200; placeholder: "Add a task"
        onAccepted: ++accepts
        onCancelled: ++cancels
    })");
    press(Qt::Key_Tab);
    QTest::keyClick(&window_, 'a');
    QTest::keyClick(&window_, ' ');
    EXPECT_EQ(root_->property("text").toString(), "a ");
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(count("accepts"), 1);
    EXPECT_EQ(count("cancels"), 1);
}

} // namespace
} // namespace kestrelfen
