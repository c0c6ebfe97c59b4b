pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The three buttons of the dashboard, on a second line where they are too wide for one.
Flow {
    id: row

    required property DashboardModel model

    spacing: 8

    Repeater {
        model: row.model.controls
        delegate: Item {
            id: place

            required property int key
            required property string text
            required property bool offered
            readonly property bool isFirst: key === 0
            readonly property Item shown: isFirst ? primary : secondary

            implicitWidth: shown.implicitWidth
            implicitHeight: shown.implicitHeight

            PrimaryAction {
                id: primary
                visible: place.isFirst
                label: place.text
                enabled: place.offered
                onClicked: row.model.press(place.key)
            }

            SecondaryAction {
                id: secondary
                visible: !place.isFirst
                label: place.text
                enabled: place.offered
                line: Glass.dark ? Glass.hairline : Glass.rule
                onClicked: row.model.press(place.key)
            }
        }
    }
}
