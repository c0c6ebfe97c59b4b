import QtQuick
import Kestrelfen

/// A button that is only its symbol.
Item {
    id: button

    required property string symbol
    required property string spokenLabel
    property color tint: Glass.ink

    signal clicked

    implicitWidth: 18
    implicitHeight: 18
    opacity: area.isDown ? 0.6 : 1

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
        tint: button.tint
    }

    PressArea {
        id: area
        anchors.fill: parent
        anchors.margins: -4
        control: button
        onActivated: button.clicked()
    }

    FocusRing {
        target: button
        around: 9
        gap: 0
    }
}
