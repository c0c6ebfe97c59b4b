pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// Five figures side by side, with lines between them.
Item {
    id: row

    required property var stats
    readonly property real step: width / 5

    implicitHeight: 38

    Repeater {
        model: 5
        delegate: Item {
            id: stat

            required property int index
            readonly property var content: row.stats[index]

            anchors.left: parent?.left
            anchors.leftMargin: Math.round(index * row.step)
            width: Math.round(row.step)
            height: row.height
            Accessible.role: Accessible.StaticText
            Accessible.name: content.value + " " + content.label

            Rectangle {
                visible: stat.index > 0
                y: 4
                width: 1
                height: 30
                color: Glass.rule
            }

            Label {
                id: value
                anchors.left: parent.left
                anchors.leftMargin: stat.index > 0 ? 15 : 0
                text: stat.content.value
                size: 15
                weight: Font.DemiBold
                color: Glass[stat.content.tint]
                Accessible.ignored: true
            }

            Label {
                anchors.left: value.left
                anchors.top: value.bottom
                anchors.topMargin: 2
                text: stat.content.label
                size: 11
                color: Glass.faint
                Accessible.ignored: true
            }
        }
    }
}
