import QtQuick
import Kestrelfen

/// The slim bar of a scroll area, which can be dragged along its parent.
Item {
    id: thumb

    /// Of the content, how much is shown.
    required property real share
    /// Where that lies: 0 at the top, 1 at the bottom.
    required property real place
    readonly property real way: Math.max(1, parent.height - height)
    readonly property bool isHeld: mouse.containsMouse || mouse.pressed

    signal dragged(real place)

    y: place * way
    width: 12
    height: Math.max(28, parent.height * share)
    visible: share < 1

    Rectangle {
        anchors.centerIn: parent
        width: thumb.isHeld ? 6 : 4
        height: parent.height - 6
        radius: width / 2
        color: Glass.faded(Glass.slate, thumb.isHeld ? 0.7 : 0.4)
    }

    MouseArea {
        id: mouse

        property real grip: 0

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: event => grip = event.y
        onPositionChanged: event => {
            if (pressed) {
                thumb.dragged((thumb.y + event.y - grip) / thumb.way);
            }
        }
    }
}
