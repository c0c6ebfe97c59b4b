import QtQuick
import Kestrelfen

/// A list that makes only the rows in sight. The wheel, a finger, the arrows, Page Up and Page Down move it. The row
/// that gets the keyboard comes into view.
ListView {
    id: list

    property string spokenLabel: ""
    readonly property real mostDown: Math.max(0, contentHeight - height)
    readonly property Item focused: Window.activeFocusItem

    function moveBy(distance: real) {
        contentY = originY + Math.max(0, Math.min(mostDown, contentY - originY + distance));
    }

    /// The row that `item` is or stands in, if it is one of this list.
    function rowOf(item: Item): Item {
        for (let each = item; each; each = each.parent) {
            if (each.parent === contentItem) {
                return each;
            }
        }
        return null;
    }

    function show(row: Item) {
        moveBy(Math.min(0, row.y - contentY) + Math.max(0, row.y + row.height - contentY - height));
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    // Rows that are used again are told of in an order that is not theirs.
    reuseItems: false
    // One row more at each end, for the keyboard to go to.
    cacheBuffer: 40
    interactive: mostDown > 0
    activeFocusOnTab: mostDown > 0
    Accessible.role: Accessible.List
    Accessible.name: spokenLabel

    onFocusedChanged: {
        const row = rowOf(focused);
        if (row) {
            show(row);
        }
    }

    Keys.onUpPressed: moveBy(-40)
    Keys.onDownPressed: moveBy(40)
    Keys.onPressed: event => {
        const moves = {
            [Qt.Key_PageUp]: -height * 0.9,
            [Qt.Key_PageDown]: height * 0.9,
            [Qt.Key_Home]: -contentHeight,
            [Qt.Key_End]: contentHeight
        };
        if (event.key in moves) {
            moveBy(moves[event.key]);
            event.accepted = true;
        }
    }

    Item {
        parent: list
        anchors.right: parent.right
        width: 12
        height: list.height

        ScrollThumb {
            share: list.mostDown > 0 ? list.height / list.contentHeight : 1
            place: list.mostDown > 0 ? (list.contentY - list.originY) / list.mostDown : 0
            onDragged: place => list.contentY = list.originY + place * list.mostDown
        }
    }

    FocusRing {
        parent: list
        target: list
        around: 8
        gap: -4
    }
}
