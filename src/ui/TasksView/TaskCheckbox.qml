import QtQuick
import Kestrelfen

/// Whether a task is done.
Rectangle {
    id: box

    required property bool isChecked
    required property bool isAccented
    required property string spokenLabel

    signal clicked

    width: 17
    height: 17
    radius: 5
    color: isChecked ? Glass.accent : "transparent"
    border.width: isChecked ? 0 : 1.5
    border.color: isAccented ? Glass.accent : Glass.faint

    activeFocusOnTab: true
    Keys.forwardTo: [area]
    Accessible.role: Accessible.CheckBox
    Accessible.name: spokenLabel
    Accessible.checkable: true
    Accessible.checked: isChecked
    Accessible.focusable: true
    Accessible.onPressAction: box.clicked()
    Accessible.onToggleAction: box.clicked()

    Symbol {
        anchors.centerIn: parent
        visible: box.isChecked
        name: "checkmark"
        size: 9
        weight: Font.Bold
        tint: Glass.white
    }

    PressArea {
        id: area
        anchors.fill: parent
        anchors.margins: -5
        control: box
        onActivated: box.clicked()
    }

    FocusRing {
        target: box
        around: box.radius
    }
}
