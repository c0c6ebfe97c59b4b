import QtQuick
import Kestrelfen

/// A minus and a plus around a shown value. The arrow keys step as well, and go on while they are held.
Rectangle {
    id: stepper

    required property string value
    property bool isInvalid: false
    property bool canDecrement: true
    property bool canIncrement: true
    property string spokenLabel: ""
    property string decrementLabel: ""
    property string incrementLabel: ""

    signal decrement
    signal increment

    function step(up: bool) {
        if (up && canIncrement && enabled) {
            increment();
        } else if (!up && canDecrement && enabled) {
            decrement();
        }
    }

    implicitWidth: row.implicitWidth + 6
    implicitHeight: row.implicitHeight + 6
    radius: 9
    color: isInvalid ? Glass.faded(Glass.amber, 0.14) : Glass.sunk
    border.width: isInvalid ? 1 : 0
    border.color: Glass.over(Glass.faded(Glass.amber, 0.4), color)
    opacity: enabled ? 1 : 0.4

    activeFocusOnTab: enabled
    Keys.onUpPressed: stepper.step(true)
    Keys.onDownPressed: stepper.step(false)
    Keys.onRightPressed: stepper.step(!row.LayoutMirroring.enabled)
    Keys.onLeftPressed: stepper.step(row.LayoutMirroring.enabled)
    Accessible.role: Accessible.SpinBox
    Accessible.name: spokenLabel
    Accessible.description: value
    Accessible.focusable: enabled
    Accessible.onIncreaseAction: stepper.step(true)
    Accessible.onDecreaseAction: stepper.step(false)

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 2

        StepperButton {
            glyph: "−"
            spokenLabel: stepper.decrementLabel
            enabled: stepper.canDecrement
            onStepped: stepper.step(false)
        }

        Item {
            implicitWidth: Math.max(62, shown.implicitWidth)
            implicitHeight: 24

            Label {
                id: shown
                anchors.centerIn: parent
                text: stepper.value
                weight: Font.DemiBold
                color: stepper.isInvalid ? Glass.amber : Glass.ink
            }
        }

        StepperButton {
            glyph: "+"
            spokenLabel: stepper.incrementLabel
            enabled: stepper.canIncrement
            onStepped: stepper.step(true)
        }
    }

    FocusRing {
        target: stepper
        around: stepper.radius
    }
}
