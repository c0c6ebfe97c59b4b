#include "face/kit/KitTest.hpp"

#include <QAccessible>

namespace kestrelfen {
namespace {

class AccessibilityTest : public KitTest {
  protected:
    static void collect(QAccessibleInterface* item, std::vector<QAccessibleInterface*>& all) {
        all.push_back(item);
        for (int index = 0; index < item->childCount(); ++index) {
            collect(item->child(index), all);
        }
    }

    /// What is told of this name with this role.
    QAccessibleInterface* told(QAccessible::Role role, const QString& name) {
        std::vector<QAccessibleInterface*> all;
        collect(QAccessible::queryAccessibleInterface(&window_), all);
        for (QAccessibleInterface* const each : all) {
            if (each->role() == role && each->text(QAccessible::Name) == name) {
                return each;
            }
        }
        ADD_FAILURE() << "nothing of role " << role << " is called " << name.toStdString();
        return QAccessible::queryAccessibleInterface(&window_);
    }

    static void act(QAccessibleInterface* item, const QString& action) {
        ASSERT_TRUE(item->actionInterface());
        EXPECT_TRUE(item->actionInterface()->actionNames().contains(action)) << action.toStdString();
        item->actionInterface()->doAction(action);
    }
};

TEST_F(AccessibilityTest, aButtonIsCalledByItsSpokenLabelAndCanBePressed) {
    show("PrimaryAction { property int clicks: 0; label: '+1 min'; spokenLabel: 'Snooze 1 minute'; "
         "onClicked: ++clicks }");
    QAccessibleInterface* const button = told(QAccessible::Button, "Snooze 1 minute");
    EXPECT_TRUE(button->state().focusable);
    act(button, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("clicks"), 1);
}

TEST_F(AccessibilityTest, whatIsDisabledCannotBeReachedOrPressed) {
    show("DangerAction { property int clicks: 0; label: 'Delete'; enabled: false; onClicked: ++clicks }");
    QAccessibleInterface* const button = told(QAccessible::Button, "Delete");
    EXPECT_FALSE(button->state().focusable);
    EXPECT_EQ(button->text(QAccessible::Description), "Not available");
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("clicks"), 0);
}

TEST_F(AccessibilityTest, aStepperAtItsEndCannotBeSteppedFurther) {
    show("StepperControl { property int ups: 0; value: '12'; spokenLabel: 'Every'; "
         "incrementLabel: 'Increase Every'; canIncrement: false; onIncrement: ++ups }");
    act(told(QAccessible::SpinBox, "Every"), QAccessibleActionInterface::increaseAction());
    act(told(QAccessible::Button, "Increase Every"), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("ups"), 0);
}

TEST_F(AccessibilityTest, aSwitchTellsItsStateAndCanBeFlipped) {
    show("GlassToggle { isOn: false; spokenLabel: 'Video Playback'; onToggled: isOn = !isOn }");
    QAccessibleInterface* const box = told(QAccessible::CheckBox, "Video Playback");
    EXPECT_TRUE(box->state().checkable);
    EXPECT_FALSE(box->state().checked);
    act(box, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(box->state().checked);
}

TEST_F(AccessibilityTest, aStepperTellsItsValueAndCanBeStepped) {
    show("StepperControl { property int ups: 0; property int downs: 0; value: '20 min'; spokenLabel: 'Work "
         "interval'; incrementLabel: 'Increase Work interval'; "
         "onIncrement: ++ups; onDecrement: ++downs }");
    QAccessibleInterface* const box = told(QAccessible::SpinBox, "Work interval");
    EXPECT_EQ(box->text(QAccessible::Description), "20 min");
    act(box, QAccessibleActionInterface::increaseAction());
    act(box, QAccessibleActionInterface::decreaseAction());
    act(told(QAccessible::Button, "Increase Work interval"), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("ups"), 2);
    EXPECT_EQ(count("downs"), 1);
}

TEST_F(AccessibilityTest, pillsAreRadioButtonsInAGroup) {
    show("SegmentedPills { selection: 2; spokenLabel: 'Snoozes'; onChosen: value => selection = value; "
         "options: [{value: 1, label: 'One'}, {value: 2, label: 'Two'}] }");
    told(QAccessible::Grouping, "Snoozes");
    EXPECT_TRUE(told(QAccessible::RadioButton, "Two")->state().checked);
    EXPECT_FALSE(told(QAccessible::RadioButton, "One")->state().checked);
    act(told(QAccessible::RadioButton, "One"), QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(told(QAccessible::RadioButton, "One")->state().checked);
}

TEST_F(AccessibilityTest, whatHasTheKeyboardSaysSo) {
    show("Row { SecondaryAction { label: 'One' } SecondaryAction { label: 'Two' } }");
    press(Qt::Key_Tab);
    EXPECT_TRUE(told(QAccessible::Button, "One")->state().focused);
    EXPECT_FALSE(told(QAccessible::Button, "Two")->state().focused);
}

TEST_F(AccessibilityTest, textsRingsAndBarsAreToldAsWritten) {
    show(R"(Column {
        Eyebrow { text: "Today" }
        CountdownRing { remaining: 0.5; label: "7:38"; diameter: 50; lineWidth: 4; labelSize: 12 }
        TrackBar { width: 100; fraction: 0.5; spokenLabel: "Breaks kept" }
        TypeBadge { text: "Active"; tint: Glass.accent }
        SettingRow { width: 200; title: "Work interval"; caption: "A caption" }
        TextInputField { placeholder: "Add a task" }
    })");
    for (const char* const text : {"7:38", "Active", "Work interval", "A caption"}) {
        told(QAccessible::StaticText, text);
    }
    EXPECT_FALSE(told(QAccessible::Heading, "Today")->state().focusable);
    told(QAccessible::ProgressBar, "Breaks kept");
    told(QAccessible::EditableText, "Add a task");
}

TEST_F(AccessibilityTest, nothingIsToldTwice) {
    show("SecondaryAction { label: 'Postpone 5m' }");
    std::vector<QAccessibleInterface*> all;
    collect(QAccessible::queryAccessibleInterface(&window_), all);
    const auto isCalledSo = [](QAccessibleInterface* each) {
        return each->text(QAccessible::Name) == "Postpone 5m";
    };
    EXPECT_EQ(std::count_if(all.begin(), all.end(), isCalledSo), 1);
}

TEST_F(AccessibilityTest, aDialogIsADialogAndAMenuAMenu) {
    show(R"(Item {
        width: 400; height: 300
        ConfirmDialog { title: "Clear?"; message: "Gone for good."; destructiveLabel: "Clear"; cancelLabel: "Cancel"; isOpen: true }
        PopupMenu { id: menu; spokenLabel: "Category"; entries: [{label: "Work", value: 1, checked: true}] }
        Component.onCompleted: menu.open(this)
    })");
    told(QAccessible::Dialog, "Clear?");
    told(QAccessible::StaticText, "Gone for good.");
    told(QAccessible::PopupMenu, "Category");
    EXPECT_TRUE(told(QAccessible::MenuItem, "Work")->state().checked);
}

} // namespace
} // namespace kestrelfen
