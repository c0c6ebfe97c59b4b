import QtQuick
import Kestrelfen

/// The glass under one row of a group, rounded where the group ends, and the hairline in the gap below.
Item {
    id: ground

    required property real corner
    required property bool isFirst
    required property bool isLast

    Item {
        anchors.fill: parent
        clip: true

        Rectangle {
            y: ground.isFirst ? 0 : -ground.corner
            width: parent.width
            height: parent.height + (ground.isFirst ? 0 : ground.corner) + (ground.isLast ? 0 : ground.corner)
            radius: ground.isFirst || ground.isLast ? ground.corner : 0
            color: Glass.glass2
        }
    }

    Rectangle {
        y: parent.height
        width: parent.width
        height: 1
        visible: !ground.isLast
        color: Glass.rule
    }
}
