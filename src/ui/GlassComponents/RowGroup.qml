pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A stack of rows on glass, with hairlines in the gaps, cut to a rounded shape. Rows are as wide as the group.
Item {
    id: group

    default property alias rows: column.data
    readonly property real corner: 14
    readonly property var shown: shownRows()

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight

    function shownRows(): var {
        const rows = [];
        for (let index = 0; index < column.visibleChildren.length; ++index) {
            const row = column.visibleChildren[index];
            if (row.height > 0) {
                rows.push(row);
            }
        }
        return rows.sort((one, other) => one.y - other.y);
    }

    Repeater {
        model: group.shown.length
        delegate: RowGround {
            required property int index
            readonly property Item row: group.shown[index] ?? null

            y: row ? row.y : 0
            width: group.width
            height: row ? row.height : 0
            corner: group.corner
            isFirst: index === 0
            isLast: index === group.shown.length - 1
        }
    }

    Column {
        id: column
        width: group.width
        spacing: 1
    }
}
