import QtQuick
import Kestrelfen

/// The knob of a switch and its shadow.
Item {
    id: knob

    property color color: Glass.white

    implicitWidth: 20
    implicitHeight: 20

    CardShadow {
        x: -4
        y: -4
        width: knob.width + 8
        height: knob.height + 8
        card: Qt.rect(4, 4, knob.width, knob.height)
        radius: knob.height / 2
        strength: 0.28
        blur: 2
        drop: 1
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: knob.color
    }
}
