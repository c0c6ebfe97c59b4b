import QtQuick
import Kestrelfen

/// One part of the score.
Column {
    id: row

    required property var meter

    spacing: 6

    Item {
        width: parent.width
        height: title.height

        Label {
            id: title
            anchors.left: parent.left
            text: row.meter.title
            size: 11.5
            color: Glass.slate
        }

        Label {
            anchors.right: parent.right
            text: row.meter.value
            size: 11.5
            color: Glass.slate
        }
    }

    TrackBar {
        width: parent.width
        barHeight: 5
        fraction: row.meter.fraction
        tint: Glass[row.meter.tint]
    }
}
