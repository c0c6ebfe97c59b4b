pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A menu within the window. The arrows go from entry to entry, Return or Space takes one, Escape or a click beside it
/// closes the menu.
ModalVeil {
    id: menu

    /// Each is `{label, value}` with, as it may be, `symbol`, `checked`, `destructive: true`, `enabled: false` or, alone,
    /// `separator: true`.
    required property var entries
    property string spokenLabel: ""
    property Item anchor: null

    signal chosen(var value)

    /// Shows the menu below `item`, or above it where there is no room.
    function open(item: Item) {
        anchor = item;
        isOpen = true;
    }

    function move(from: int, by: int) {
        const count = repeater.count;
        for (let step = 1; step <= count; ++step) {
            const row = repeater.itemAt((from + by * step + 2 * count) % count);
            if (row?.isSelectable) {
                row.forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    function take(value: var) {
        isOpen = false;
        chosen(value);
    }

    function openAt(): point {
        const place = anchor.mapToItem(menu, 0, anchor.height + 4);
        const across = LayoutMirroring.enabled ? place.x + anchor.width - card.width : place.x;
        const down = place.y + card.height > height - 8 ? place.y - anchor.height - 8 - card.height : place.y;
        return Qt.point(Math.max(8, Math.min(across, width - card.width - 8)), Math.max(8, down));
    }

    shade: "transparent"
    onDismissed: isOpen = false
    onOpened: {
        const place = openAt();
        card.x = place.x;
        card.y = place.y;
        move(Math.max(0, entries.findIndex(entry => entry.checked === true)) - 1, 1);
    }
    Accessible.role: Accessible.PopupMenu
    Accessible.name: spokenLabel

    CardShadow {
        anchors.fill: parent
        card: Qt.rect(card.x, card.y, card.width, card.height)
        radius: card.radius
        blur: 14
        drop: 5
    }

    Rectangle {
        id: card
        width: rows.width + 10
        height: rows.height + 10
        radius: 10
        color: Glass.over(Glass.hudFill, Glass.wallpaper2)
        border.width: 1
        border.color: Glass.over(Glass.hudBorder, color)

        MouseArea {
            anchors.fill: parent
        }

        Column {
            id: rows

            readonly property real widest: {
                let width = 120;
                for (let index = 0; index < repeater.count; ++index) {
                    width = Math.max(width, repeater.itemAt(index)?.naturalWidth ?? 0);
                }
                return Math.min(width, menu.width - 26);
            }

            x: 5
            y: 5

            Repeater {
                id: repeater
                model: menu.entries
                delegate: PopupMenuRow {
                    required property int index

                    width: rows.widest
                    onTaken: menu.take(entry.value)
                    onMoved: by => menu.move(index, by)
                }
            }
        }
    }
}
