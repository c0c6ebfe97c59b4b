#include "face/kit/KitTest.hpp"

namespace kestrelfen {
namespace {

constexpr char dialog[] = R"(Item {
    property int confirms: 0
    property int cancels: 0
    property int clicks: 0
    property alias isOpen: dialog.isOpen
    width: 400; height: 300
    Column {
        SecondaryAction { label: "Under"; onClicked: ++parent.parent.clicks }
        ConfirmDialog {
            id: dialog
            title: "Clear?"; message: "They are gone for good."; destructiveLabel: "Clear"
            cancelLabel: "Cancel"
            onConfirmed: ++confirms
            onCancelled: { ++cancels; isOpen = false }
        }
    }
})";

constexpr char menu[] = R"(Item {
    property var taken: null
    property alias isOpen: menu.isOpen
    width: 400; height: 300
    SecondaryAction { x: 20; y: 20; label: "Menu"; onClicked: menu.open(this) }
    PopupMenu {
        id: menu
        entries: [{label: "One", value: 1}, {label: "Two", value: 2, checked: true}, {separator: true},
                  {label: "Three", value: 3, enabled: false}, {label: "Four", value: 4}]
        onChosen: value => taken = value
    }
})";

constexpr char list[] = R"(ScrollArea {
    width: 200; height: 100
    Column {
        Repeater {
            model: 20
            delegate: SecondaryAction { required property int index; width: 100; height: 30; label: "Entry " + index }
        }
    }
})";

class ModalTest : public KitTest {
  protected:
    void open(const char* qml) {
        show(qml);
        root_->setProperty("isOpen", true);
        picture();
    }

    bool isOpen() const { return root_->property("isOpen").toBool(); }
    double offset() const { return root_->property("offset").toDouble(); }
};

TEST_F(ModalTest, aDialogDimsTheWindowAndIsInItsMiddle) {
    show(dialog);
    EXPECT_TRUE(looks(pixel(5, 295), backdrop));
    root_->setProperty("isOpen", true);
    EXPECT_TRUE(looks(pixel(5, 295), over(token("shade"), backdrop), 4));
    EXPECT_FALSE(looks(pixel(200, 150), over(token("shade"), backdrop), 40));
}

TEST_F(ModalTest, theDestructiveActionIsNotTheDefault) {
    open(dialog);
    EXPECT_TRUE(hasKeyboard("Cancel"));
    press(Qt::Key_Return);
    EXPECT_EQ(count("cancels"), 1);
    EXPECT_EQ(count("confirms"), 0);
    EXPECT_FALSE(isOpen());
}

TEST_F(ModalTest, escapeCancelsADialog) {
    open(dialog);
    press(Qt::Key_Escape);
    EXPECT_EQ(count("cancels"), 1);
    EXPECT_FALSE(isOpen());
}

TEST_F(ModalTest, tabStaysInADialogAndTheKeyboardComesBack) {
    show(dialog);
    press(Qt::Key_Tab);
    ASSERT_TRUE(hasKeyboard("Under"));
    root_->setProperty("isOpen", true);
    for (const char* const name : {"Clear", "Cancel", "Clear"}) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(hasKeyboard(name)) << name;
    }
    press(Qt::Key_Backtab);
    EXPECT_TRUE(hasKeyboard("Cancel"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(hasKeyboard("Under"));
}

TEST_F(ModalTest, nothingUnderADialogTakesClicks) {
    open(dialog);
    click(named("Under"));
    EXPECT_EQ(count("clicks"), 0);
    EXPECT_TRUE(isOpen());
    click(named("Clear"));
    EXPECT_EQ(count("confirms"), 1);
}

TEST_F(ModalTest, aDialogGrowsWithItsWindow) {
    open(dialog);
    root_->setSize(QSizeF(400, 290));
    EXPECT_TRUE(looks(pixel(5, 285), over(token("shade"), backdrop), 4));
    EXPECT_TRUE(looks(pixel(5, 295), backdrop, 4));
}

TEST_F(ModalTest, aMenuBeginsAtWhatIsCheckedAndSkipsWhatCannotBeTaken) {
    show(menu);
    click(named("Menu"));
    picture();
    EXPECT_TRUE(hasKeyboard("Two"));
    press(Qt::Key_Down);
    EXPECT_TRUE(hasKeyboard("Four"));
    press(Qt::Key_Down);
    EXPECT_TRUE(hasKeyboard("One"));
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_EQ(count("taken"), 4);
    EXPECT_FALSE(isOpen());
}

TEST_F(ModalTest, aMenuStandsBelowWhatOpenedItAndAClickTakes) {
    show(menu);
    click(named("Menu"));
    picture();
    EXPECT_GT(named("One")->mapToScene(QPointF()).y(), 20 + named("Menu")->height());
    click(named("Three"));
    EXPECT_TRUE(isOpen()) << "disabled";
    click(named("One"));
    EXPECT_EQ(count("taken"), 1);
}

TEST_F(ModalTest, escapeAndAClickBesideCloseAMenu) {
    show(menu);
    click(named("Menu"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    click(named("Menu"));
    QTest::mouseClick(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(390, 290));
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(root_->property("taken").isValid() && !root_->property("taken").isNull());
}

TEST_F(ModalTest, aMenuWithoutRoomBelowStandsAbove) {
    show(QString(menu).replace("y: 20", "y: 250"));
    click(named("Menu"));
    picture();
    EXPECT_LT(named("Four")->mapToScene(QPointF()).y(), 250);
}

TEST_F(ModalTest, pagesAndEndsScroll) {
    show(list);
    press(Qt::Key_Tab);
    press(Qt::Key_PageDown);
    EXPECT_EQ(offset(), 90);
    press(Qt::Key_End);
    EXPECT_EQ(offset(), 500);
    press(Qt::Key_PageDown);
    EXPECT_EQ(offset(), 500);
    press(Qt::Key_Home);
    EXPECT_EQ(offset(), 0);
}

TEST_F(ModalTest, theWheelScrollsWithinBounds) {
    show(list);
    const auto turn = [this](int angle) {
        QWheelEvent event(QPointF(50, 50), QPointF(50, 50), {}, QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window_, &event);
    };
    turn(-120);
    EXPECT_EQ(offset(), 60);
    turn(240);
    EXPECT_EQ(offset(), 0);
}

TEST_F(ModalTest, whatGetsTheKeyboardComesIntoView) {
    show(list);
    for (int times = 0; times < 10; ++times) {
        press(Qt::Key_Tab);
    }
    const double top = named("Entry 9")->mapToScene(QPointF()).y();
    EXPECT_GE(top, 0);
    EXPECT_LE(top + 30, 100);
    for (int times = 0; times < 9; ++times) {
        press(Qt::Key_Backtab);
    }
    EXPECT_EQ(named("Entry 0")->mapToScene(QPointF()).y(), 0);
}

TEST_F(ModalTest, theBarShowsWhereAndCanBeDragged) {
    show(list);
    QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(195, 10));
    QTest::mouseMove(&window_, QPoint(195, 30));
    QTest::mouseMove(&window_, QPoint(195, 150));
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, QPoint(195, 150));
    EXPECT_EQ(offset(), 500);
}

TEST_F(ModalTest, whatFitsDoesNotScroll) {
    show("ScrollArea { width: 200; height: 100; Item { width: 100; height: 90 } }");
    press(Qt::Key_PageDown);
    EXPECT_EQ(offset(), 0);
}

} // namespace
} // namespace kestrelfen
