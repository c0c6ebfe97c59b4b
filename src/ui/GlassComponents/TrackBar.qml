import QtQuick
import Kestrelfen

/// A thin bar that fills up.
Rectangle {
    id: track

    required property double fraction
    property color tint: Glass.accent

    implicitHeight: 4
    radius: height / 2
    color: Glass.sunk

    Rectangle {
        width: Math.max(0, Math.min(1, track.fraction)) * track.width
        height: track.height
        radius: track.radius
        color: track.tint
    }
}
