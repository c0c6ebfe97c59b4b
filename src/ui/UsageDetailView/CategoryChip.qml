import QtQuick
import Kestrelfen

/// One category and how many apps it holds.
Rectangle {
    id: capsule

    required property var chip
    readonly property color textColor: chip.isSelected ? Glass.overProminent : Glass.ink
    readonly property string spokenLabel: chip.label + " " + chip.count

    signal clicked
    /// The arrow keys ask for a neighbour, in the order of the chips.
    signal moved(int by)

    implicitWidth: row.width + 20
    implicitHeight: row.height + 8
    radius: height / 2
    color: chip.isSelected ? Glass.prominent : Glass.sunk
    opacity: area.isDown ? 0.7 : 1

    // One stop for the keyboard: the arrow keys do the rest.
    activeFocusOnTab: chip.isSelected === true
    Keys.forwardTo: [area]
    Keys.onUpPressed: capsule.moved(-1)
    Keys.onDownPressed: capsule.moved(1)
    Keys.onLeftPressed: capsule.moved(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: capsule.moved(LayoutMirroring.enabled ? -1 : 1)
    Accessible.role: Accessible.RadioButton
    Accessible.name: spokenLabel
    Accessible.checkable: true
    Accessible.checked: chip.isSelected === true
    Accessible.focusable: true
    Accessible.onPressAction: capsule.clicked()

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5

        Symbol {
            visible: capsule.chip.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: capsule.chip.symbol
            size: 9
            tint: capsule.textColor
        }

        Label {
            text: capsule.chip.label
            size: 11.5
            color: capsule.textColor
            Accessible.ignored: true
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: capsule.chip.count
            size: 9.5
            opacity: Glass.highContrast ? 1 : 0.8
            color: capsule.textColor
            Accessible.ignored: true
        }
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: capsule
        takesKeyboard: true
        onActivated: capsule.clicked()
    }

    FocusRing {
        target: capsule
        around: capsule.radius
    }
}
