pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The three buttons, which share the row in whole pixels.
Item {
    id: row

    required property MenuBarModel model
    readonly property real step: (width - 40 + 8) / 3

    implicitHeight: buttons.height + 18

    Item {
        id: buttons
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 20
        anchors.rightMargin: 20
        height: childrenRect.height

        Repeater {
            model: row.model.controls
            delegate: PopoverAction {
                id: button

                required property int index
                required property int key
                required property string text
                required property bool offered
                required spokenLabel
                readonly property int start: Math.round(index * row.step)

                anchors.left: parent?.left
                anchors.leftMargin: start
                width: Math.round((index + 1) * row.step) - 8 - start
                label: text
                enabled: offered
                prominent: key === row.model.prominentKey
                onClicked: row.model.press(button.key)
            }
        }
    }
}
