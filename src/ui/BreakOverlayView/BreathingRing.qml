import QtQuick
import Kestrelfen

/// The ring of a break over its halo, whose disc sets the size of the whole.
Item {
    id: place

    required property bool isLong
    required property double remaining
    required property string label

    implicitWidth: isLong ? 320 : 280
    implicitHeight: implicitWidth

    Halo {
        anchors.centerIn: parent
        width: implicitWidth
        height: implicitHeight
        tint: Glass.faded(Glass.accent, place.isLong ? 0.14 : 0.12)
        diameter: place.implicitWidth
        blur: place.isLong ? 40 : 30
        legSeconds: place.isLong ? 7 : 5
        breathing: place.visible && !Appearance.reducedMotion
    }

    CountdownRing {
        anchors.centerIn: parent
        remaining: place.remaining
        label: place.label
        diameter: place.isLong ? 260 : 230
        lineWidth: place.isLong ? 9 : 8
        labelSize: place.isLong ? 60 : 58
    }
}
