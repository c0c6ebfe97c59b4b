pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// What the columns of the history hold.
Item {
    id: header

    required property var columns
    required property var columnWidths

    implicitHeight: row.height + 22

    Row {
        id: row
        anchors.left: parent.left
        anchors.leftMargin: 18
        y: 11
        spacing: 12

        Repeater {
            model: header.columns.length
            delegate: Eyebrow {
                required property int index

                width: header.columnWidths[index]
                text: header.columns[index].header
                Accessible.role: Accessible.ColumnHeader
            }
        }
    }
}
