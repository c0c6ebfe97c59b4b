import QtQuick
import Kestrelfen

/// A symbol to click, with a word for it where the pointer rests.
Rectangle {
    id: button

    required property string symbol
    required property string tip
    property color tint: Glass.slate
    readonly property string spokenLabel: tip

    signal clicked

    implicitWidth: 28
    implicitHeight: 28
    radius: 8
    color: area.isDown ? Glass.sunk : "transparent"

    activeFocusOnTab: true
    Keys.forwardTo: [area]
    Accessible.role: Accessible.Button
    Accessible.name: tip
    Accessible.focusable: true
    Accessible.onPressAction: button.clicked()

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        size: 12
        tint: button.tint
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: button
        hoverEnabled: true
        onActivated: button.clicked()
    }

    RestingTip {
        hovered: area.containsMouse
        text: button.tip
    }

    FocusRing {
        target: button
        around: button.radius
        gap: 0
    }
}
