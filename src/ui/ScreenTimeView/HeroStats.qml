pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// Five figures side by side, with lines between them. What stands under a figure goes on in a second line where it is
/// too long for one.
Item {
    id: row

    required property var stats
    readonly property real step: width / 5
    /// How high the lines under the figures are, beyond the first.
    property real more: 0

    function measure(): void {
        let most = 0;
        for (let index = 0; index < repeater.count; ++index) {
            most = Math.max(most, repeater.itemAt(index)?.more ?? 0);
        }
        more = most;
    }

    implicitHeight: 38 + more

    Repeater {
        id: repeater
        model: 5
        delegate: Item {
            id: stat

            required property int index
            readonly property var content: row.stats[index]
            readonly property real more: caption.implicitHeight * (1 - 1 / caption.lineCount)

            onMoreChanged: row.measure()

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
                id: caption
                anchors.left: value.left
                anchors.right: parent.right
                anchors.rightMargin: 4
                anchors.top: value.bottom
                anchors.topMargin: 2
                wrapMode: Text.Wrap
                text: stat.content.label
                size: 11
                color: Glass.faint
                Accessible.ignored: true
            }
        }
    }
}
