import QtQuick
import Kestrelfen

/// The ring with the time in it.
Item {
    id: ring

    required property double remaining
    required property string label
    required property real diameter
    required property real lineWidth
    required property real labelSize

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
        isStill: Appearance.reducedMotion
    }

    Label {
        anchors.centerIn: parent
        text: ring.label
        size: ring.labelSize
        weight: Font.DemiBold
        monospaced: true
        Accessible.ignored: true
    }
}
