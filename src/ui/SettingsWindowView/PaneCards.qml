pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A row of cards that exclude each other, equally wide and high. The arrow keys go from one to the next.
Row {
    id: row

    required property KeyedListModel cards
    required property bool areModes
    /// That of the highest.
    property real cardHeight: 0

    signal chosen(string key, string word)

    function measure(): void {
        let most = 0;
        for (let index = 0; index < repeater.count; ++index) {
            most = Math.max(most, repeater.itemAt(index)?.implicitHeight ?? 0);
        }
        cardHeight = most;
    }

    function move(to: int): void {
        const card = repeater.itemAt(to) as ChoiceCard;
        if (card) {
            card.forceActiveFocus(Qt.TabFocusReason);
            row.chosen(card.key, card.value);
        }
    }

    spacing: 12
    Accessible.role: Accessible.Grouping

    Repeater {
        id: repeater
        model: row.cards
        onItemAdded: row.measure()
        delegate: ChoiceCard {
            required property int index

            width: (row.width - row.spacing * (repeater.count - 1)) / repeater.count
            height: row.cardHeight
            onImplicitHeightChanged: row.measure()
            isOutlined: row.areModes
            onActivated: row.chosen(key, value)
            onMoved: by => row.move(index + by)
        }
    }
}
