import QtQuick
import Kestrelfen

/// The task that the breaks are credited to.
Item {
    id: row

    required property string title
    required property string caption
    required property string credits

    implicitHeight: words.height + 28

    Outline {
        id: marker
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        radius: 5
        lineWidth: 1.5
        tint: Glass.accent

        Rectangle {
            anchors.centerIn: parent
            width: 6
            height: 6
            radius: 2
            color: Glass.accent
        }
    }

    Column {
        id: words
        anchors.left: marker.right
        anchors.leftMargin: 10
        anchors.right: count.left
        anchors.rightMargin: 18
        y: 14
        spacing: 1

        Label {
            width: parent.width
            text: row.title
            size: 12.5
            elide: Text.ElideRight
            maximumLineCount: 1
        }

        Label {
            width: parent.width
            text: row.caption
            size: 11
            color: Glass.faint
            elide: Text.ElideRight
        }
    }

    Label {
        id: count
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        text: row.credits
        size: 12
        weight: Font.DemiBold
        monospaced: true
    }
}
