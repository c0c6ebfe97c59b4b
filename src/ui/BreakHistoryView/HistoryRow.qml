import QtQuick
import Kestrelfen

/// One break or pause.
Item {
    id: entry

    required property int index
    required property var row
    required property var columnWidths

    implicitHeight: Math.max(started.implicitHeight, badge.implicitHeight) + 24
    Accessible.role: Accessible.ListItem
    Accessible.name: row.sentence

    Rectangle {
        visible: entry.index > 0
        width: parent.width
        height: 1
        color: Glass.rule
    }

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        spacing: 12

        Cell {
            id: started
            width: entry.columnWidths[0]
            text: entry.row.started
        }

        Item {
            anchors.verticalCenter: parent.verticalCenter
            width: entry.columnWidths[1]
            height: badge.height

            TypeBadge {
                id: badge
                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width)
                text: entry.row.type
                tint: Glass[entry.row.tint]
                Accessible.ignored: true
            }
        }

        Cell {
            width: entry.columnWidths[2]
            text: entry.row.duration
        }

        Cell {
            width: entry.columnWidths[3]
            text: entry.row.task
            color: entry.row.isWithoutTask ? Glass.faint : Glass.ink
        }

        Cell {
            width: entry.columnWidths[4]
            text: entry.row.display
            color: Glass.slate
        }
    }

    component Cell: Label {
        anchors.verticalCenter: parent?.verticalCenter
        size: 12.5
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
