import QtQuick
import Kestrelfen

/// A symbol that leads somewhere.
Rectangle {
    id: button

    required property string symbol
    required property string spokenLabel
    property color tint: Glass.ink
    readonly property bool isPointedAt: area.containsMouse

    signal clicked

    implicitWidth: 30
    implicitHeight: 26
    radius: 8
    color: area.isDown ? Glass.sunk : "transparent"

    activeFocusOnTab: true
    Keys.forwardTo: [area]
    Accessible.role: Accessible.Button
    Accessible.name: spokenLabel
    Accessible.focusable: true
    Accessible.onPressAction: button.clicked()

    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        size: 13
        weight: Font.Medium
        tint: button.tint
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: button
        hoverEnabled: true
        onActivated: button.clicked()
    }

    FocusRing {
        target: button
        around: button.radius
        gap: 0
    }
}
