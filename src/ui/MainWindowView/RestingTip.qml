import QtQuick
import Kestrelfen

/// Says in words what its parent is for, below it, once the pointer has rested there.
Rectangle {
    id: tip

    required property bool hovered
    required property string text
    property bool isDue: false

    anchors.right: parent.right
    y: parent.height + 5
    z: 1
    visible: isDue && hovered
    width: words.implicitWidth + 16
    height: words.implicitHeight + 10
    radius: 7
    color: Qt.rgba(Glass.hudFill.r, Glass.hudFill.g, Glass.hudFill.b, 1)
    border.width: 1
    border.color: Glass.over(Glass.hudBorder, color)
    Accessible.ignored: true

    onHoveredChanged: {
        isDue = false;
        patience.running = hovered;
    }

    Timer {
        id: patience
        interval: 600
        onTriggered: tip.isDue = true
    }

    Label {
        id: words
        anchors.centerIn: parent
        text: tip.text
        size: 11
        Accessible.ignored: true
    }
}
