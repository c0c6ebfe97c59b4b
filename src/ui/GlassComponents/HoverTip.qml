import QtQuick
import Kestrelfen

/// Says in words what the control under the pointer does, once the pointer has rested there; within the same window,
/// as not every desktop lets a small one be placed.
Rectangle {
    id: tip

    property Item target: null
    property string text: ""
    property bool isDue: false
    readonly property int gap: 5

    visible: isDue && target !== null
    x: target ? Math.max(0, Math.min(parent.width - width, target.x + (target.width - width) / 2)) : 0
    y: target ? target.y - height - gap : 0
    z: 1
    width: words.implicitWidth + 16
    height: words.implicitHeight + 10
    radius: 7
    color: Qt.rgba(Glass.hudFill.r, Glass.hudFill.g, Glass.hudFill.b, 1)
    border.width: 1
    border.color: Qt.tint(color, Glass.hudBorder)
    Accessible.ignored: true

    onTargetChanged: {
        isDue = false;
        patience.restart();
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
