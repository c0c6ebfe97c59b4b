pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The values of a preference to choose among.
CardRow {
    id: row

    required property bool areModes

    signal chosen(string key, string word)

    spacing: 12
    delegate: ChoiceCard {
        required property int index

        width: row.cardWidth
        height: row.cardHeight
        onImplicitHeightChanged: row.measure()
        isOutlined: row.areModes
        onActivated: row.chosen(key, value)
        onMoved: by => row.move(index + by)
    }
}
