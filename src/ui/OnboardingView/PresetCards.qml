pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The cadences to choose among.
CardRow {
    id: row

    signal chosen(string key)

    spacing: 10
    delegate: PresetCard {
        required property int index

        width: row.cardWidth
        height: row.cardHeight
        onImplicitHeightChanged: row.measure()
        onActivated: row.chosen(key)
        onMoved: by => row.move(index + by)
    }
}
