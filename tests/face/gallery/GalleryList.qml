import QtQuick
import Kestrelfen

/// A list that is too long for its place.
ScrollArea {
    id: list

    Column {
        width: list.width

        Repeater {
            model: 12
            delegate: Row {
                required property int index
                width: list.width
                height: 30
                spacing: 12

                GlassToggle {
                    anchors.verticalCenter: parent.verticalCenter
                    isOn: index % 3 === 0
                    spokenLabel: "Entry " + (index + 1)
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Entry " + (index + 1)
                }
            }
        }
    }
}
