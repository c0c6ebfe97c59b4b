import QtQuick
import Kestrelfen

/// A thin bar that fills up.
Rectangle {
    id: track

    required property double fraction
    property color tint: Glass.accent
    property real barHeight: 4
    /// Empty where other words already tell it.
    property string spokenLabel: ""

    readonly property real filled: fraction > 0 ? Math.min(1, fraction) : 0

    implicitHeight: barHeight
    radius: height / 2
    color: Glass.sunk

    Accessible.role: Accessible.ProgressBar
    Accessible.name: spokenLabel
    Accessible.ignored: spokenLabel === ""

    Rectangle {
        anchors.left: parent.left
        width: track.filled * track.width
        height: track.height
        radius: Math.min(width, height) / 2
        color: track.tint
    }
}
