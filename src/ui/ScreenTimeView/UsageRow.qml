import QtQuick
import Kestrelfen

/// One app or website and its time.
Column {
    id: usage

    required property var row

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: row.name + ", " + row.time

    Item {
        width: parent.width
        height: name.height

        Label {
            id: name
            anchors.left: parent.left
            anchors.right: time.left
            anchors.rightMargin: 8
            text: usage.row.name
            size: 12.5
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Label {
            id: time
            anchors.right: parent.right
            anchors.baseline: name.baseline
            text: usage.row.time
            size: 12
            color: Glass.slate
            Accessible.ignored: true
        }
    }

    TrackBar {
        width: parent.width
        barHeight: 6
        fraction: usage.row.fraction
    }
}
