pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The cadences to choose among. The arrow keys go from one to the next.
Row {
    id: row

    required property KeyedListModel presets

    signal chosen(string key)

    function move(to: int): void {
        const card = repeater.itemAt(to) as PresetCard;
        if (card) {
            card.forceActiveFocus(Qt.TabFocusReason);
            row.chosen(card.key);
        }
    }

    spacing: 10
    Accessible.role: Accessible.Grouping

    Repeater {
        id: repeater
        model: row.presets
        delegate: PresetCard {
            required property int index

            width: (row.width - row.spacing * (repeater.count - 1)) / repeater.count
            onActivated: row.chosen(key)
            onMoved: by => row.move(index + by)
        }
    }
}
