pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// Which of the two pages is up.
Row {
    id: dots

    required property int current
    required property string spokenLabel

    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: spokenLabel

    Repeater {
        model: 2
        delegate: Rectangle {
            required property int index

            width: 20
            height: 4
            radius: 2
            color: index === dots.current ? Glass.accent : Glass.rule
        }
    }
}
