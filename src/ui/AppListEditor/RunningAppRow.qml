import QtQuick
import Kestrelfen

/// An application that runs and can be added to the list.
Item {
    id: row

    required property string bundleID
    required property string name
    required property string spokenAction
    readonly property string spokenLabel: spokenAction

    signal added

    implicitHeight: shown.implicitHeight + 14
    opacity: area.isDown ? 0.6 : 1

    activeFocusOnTab: true
    Keys.forwardTo: [area]
    Accessible.role: Accessible.Button
    Accessible.name: spokenLabel
    Accessible.focusable: true
    Accessible.onPressAction: row.added()

    Symbol {
        id: plus
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        name: "plus.circle"
        size: 13
        tint: Glass.accent
    }

    Label {
        id: shown
        anchors.left: plus.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: row.name
        size: 13
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: row
        onActivated: row.added()
    }

    FocusRing {
        target: row
        around: 8
        gap: -2
    }
}
