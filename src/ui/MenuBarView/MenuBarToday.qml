import QtQuick
import Kestrelfen

/// The day's numbers.
Item {
    id: today

    required property MenuBarModel model

    implicitHeight: column.height + 32

    Column {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 20
        anchors.rightMargin: 20
        y: 16

        Eyebrow {
            anchors.left: parent.left
            text: today.model.todayEyebrow
        }

        Item {
            width: 1
            height: 12
        }

        TodayRow {
            width: parent.width
            title: today.model.breaksTitle
            value: today.model.breaks
        }

        Item {
            width: parent.width
            height: 7 + 6 + 14

            TrackBar {
                y: 7
                width: parent.width
                barHeight: 6
                fraction: today.model.completionRate
            }
        }

        TodayRow {
            width: parent.width
            title: today.model.screenTimeTitle
            value: today.model.screenTime
        }

        Item {
            width: 1
            height: 7
        }

        TodayRow {
            width: parent.width
            title: today.model.skippedTitle
            value: today.model.skipped
            color: Glass.slate
            valueWeight: Font.Normal
        }
    }
}
