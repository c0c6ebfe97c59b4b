import QtQuick
import Kestrelfen

/// What is the case right now, behind a dot.
Row {
    id: status

    required property string words
    required property color tint

    spacing: 8

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 7
        height: 7
        radius: 3.5
        color: status.tint
    }

    Label {
        width: Math.min(implicitWidth, status.width - 15)
        text: status.words
        size: 12.5
        color: Glass.slate
        elide: Text.ElideRight
    }
}
