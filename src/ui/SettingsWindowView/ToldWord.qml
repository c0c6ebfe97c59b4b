import QtQuick
import Kestrelfen

/// How something stands: a word before a dot, which is hollow for what is absent. However long the words are, one under
/// another the dots line up.
Item {
    id: told

    required property string word
    required property string mood
    required property string spokenLabel
    readonly property bool isAbsent: mood === "absent"
    readonly property color tint: mood === "good" ? Glass.accent : mood === "doubtful" ? Glass.amber : Glass.faint

    implicitWidth: label.implicitWidth + 15
    implicitHeight: label.implicitHeight

    Rectangle {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 7
        height: 7
        radius: 3.5
        color: told.isAbsent ? "transparent" : told.tint
        border.width: told.isAbsent ? 1 : 0
        border.color: told.tint
    }

    Label {
        id: label
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        text: told.word
        spokenLabel: told.spokenLabel
        size: 12.5
        color: Glass.slate
    }
}
