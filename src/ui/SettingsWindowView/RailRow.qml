import QtQuick
import Kestrelfen

/// One pane's name in the rail. The arrow keys go from one to the next, Tab leaves the rail.
Rectangle {
    id: row

    required property string label
    required property bool isSelected
    readonly property string spokenLabel: label

    signal chosen
    signal moved(int by)

    width: parent ? parent.width : implicitWidth
    implicitWidth: name.implicitWidth + 20
    implicitHeight: name.implicitHeight + 14
    radius: 8
    color: isSelected ? Glass.sunk : "transparent"

    activeFocusOnTab: isSelected || activeFocus
    Keys.forwardTo: [area]
    Keys.onUpPressed: row.moved(-1)
    Keys.onDownPressed: row.moved(1)
    Accessible.role: Accessible.PageTab
    Accessible.name: label
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.focusable: true
    Accessible.onPressAction: row.chosen()

    Label {
        id: name
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: row.label
        size: 13
        weight: row.isSelected ? Font.Medium : Font.Normal
        color: row.isSelected ? Glass.ink : Glass.slate
        Accessible.ignored: true
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: row
        takesKeyboard: true
        onActivated: row.chosen()
    }

    FocusRing {
        target: row
        around: row.radius
        gap: 0
    }
}
