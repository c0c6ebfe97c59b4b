pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A row of cards that exclude each other, equally wide and high. The arrow keys go from one to the next. Each card
/// takes `cardWidth` and `cardHeight` and tells of its own height by `measure`.
Row {
    id: row

    property alias cards: repeater.model
    property alias delegate: repeater.delegate
    property string spokenLabel: ""
    readonly property real cardWidth: (width - spacing * (repeater.count - 1)) / repeater.count
    /// That of the highest.
    property real cardHeight: 0

    function measure(): void {
        let most = 0;
        for (let index = 0; index < repeater.count; ++index) {
            most = Math.max(most, repeater.itemAt(index)?.implicitHeight ?? 0);
        }
        cardHeight = most;
    }

    function move(to: int): void {
        const card = repeater.itemAt(to) as SelectableCard;
        if (card) {
            card.forceActiveFocus(Qt.TabFocusReason);
            card.activated();
        }
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: spokenLabel

    Repeater {
        id: repeater
        onItemAdded: row.measure()
    }
}
