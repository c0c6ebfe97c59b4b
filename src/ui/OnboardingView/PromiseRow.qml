import QtQuick
import Kestrelfen

/// One thing that the timer promises.
Item {
    id: row

    required property string title
    required property string line

    implicitHeight: texts.implicitHeight

    Rectangle {
        anchors.left: parent.left
        y: 6
        width: 7
        height: 7
        radius: 2
        color: Glass.accent
    }

    Column {
        id: texts
        anchors.left: parent.left
        anchors.leftMargin: 19
        anchors.right: parent.right
        spacing: 2

        Label {
            width: parent.width
            text: row.title
            size: 13.5
            weight: Font.DemiBold
            wrapMode: Text.WordWrap
        }

        Label {
            width: parent.width
            text: row.line
            size: 12.5
            color: Glass.slate
            wrapMode: Text.WordWrap
        }
    }
}
