import QtQuick
import Kestrelfen

/// The ring with the time in it.
Item {
    id: ring

    required property double remaining
    required property string label
    required property int diameter
    required property int lineWidth
    required property int labelSize

    implicitWidth: diameter
    implicitHeight: diameter

    Accessible.role: Accessible.StaticText
    Accessible.name: label

    RingArc {
        anchors.fill: parent
        remaining: ring.remaining
        lineWidth: ring.lineWidth
        track: Glass.rule
        tint: Glass.accent
    }

    Text {
        anchors.centerIn: parent
        text: ring.label
        color: Glass.ink
        font.family: Appearance.monospaced
        font.pixelSize: ring.labelSize
        font.weight: Font.DemiBold
        font.letterSpacing: -ring.labelSize * 0.04
        Accessible.ignored: true
    }
}
