import QtQuick
import Kestrelfen

/// How far the cycle is on its way to the long break.
Rectangle {
    id: chip

    required property string text

    implicitWidth: content.implicitWidth + 18
    implicitHeight: label.implicitHeight + 8
    radius: height / 2
    color: Glass.sunk

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 6
            height: 6
            radius: 3
            color: Glass.accent
        }

        Label {
            id: label
            text: chip.text
            size: 11.5
            color: Glass.slate
        }
    }
}
