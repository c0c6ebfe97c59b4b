import QtQuick
import Kestrelfen

/// The minus or the plus of a stepper. It steps when pressed, and again and again while held.
Rectangle {
    id: button

    required property string glyph
    required property string spokenLabel

    signal stepped

    /// Qt lets a press through that comes by way of accessibility, even while disabled.
    function act() {
        if (enabled) {
            stepped();
        }
    }

    implicitWidth: 26
    implicitHeight: 24
    radius: 7
    color: enabled ? Glass.glass : "transparent"

    Accessible.role: Accessible.Button
    Accessible.name: spokenLabel
    Accessible.description: enabled ? "" : SpokenWords.unavailable
    Accessible.focusable: false
    Accessible.onPressAction: button.act()

    Label {
        anchors.centerIn: parent
        text: button.glyph
        color: button.enabled ? Glass.ink : Glass.faint
        opacity: area.containsPress ? 0.6 : 1
        Accessible.ignored: true
    }

    Timer {
        id: repeat
        repeat: true
        running: area.containsPress && button.enabled
        interval: 400
        onRunningChanged: interval = 400
        onTriggered: {
            interval = 80;
            button.stepped();
        }
    }

    MouseArea {
        id: area
        anchors.fill: parent
        onPressed: button.stepped()
        onDoubleClicked: button.stepped()
    }
}
