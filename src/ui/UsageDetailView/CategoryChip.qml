import QtQuick
import Kestrelfen

/// One category and how many apps it holds.
Rectangle {
    id: capsule

    required property var chip
    readonly property color textColor: chip.isSelected ? Glass.overProminent : Glass.ink
    readonly property string spokenLabel: chip.label + " " + chip.count

    signal clicked

    implicitWidth: row.width + 20
    implicitHeight: row.height + 8
    radius: height / 2
    color: chip.isSelected ? Glass.prominent : Glass.sunk
    opacity: area.isDown ? 0.7 : 1

    activeFocusOnTab: true
    Keys.forwardTo: [area]
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
            opacity: 0.8
            color: capsule.textColor
            Accessible.ignored: true
        }
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: capsule
        onActivated: capsule.clicked()
    }

    FocusRing {
        target: capsule
        around: capsule.radius
    }
}
