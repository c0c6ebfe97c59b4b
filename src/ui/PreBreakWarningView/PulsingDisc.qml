import QtQuick
import Kestrelfen

/// A disc that grows a little and shrinks again, easing in and out, in steps too small to be seen one by one.
Rectangle {
    id: disc

    property bool pulsing: true
    readonly property real greatestScale: 1.04
    readonly property int legMilliseconds: 2000
    readonly property int stepsPerLeg: 12
    property int step: 0

    radius: width / 2
    color: Glass.accentFill
    scale: 1 + (greatestScale - 1) * (1 - Math.cos(Math.PI * step / stepsPerLeg)) / 2

    onPulsingChanged: step = 0

    Timer {
        interval: disc.legMilliseconds / disc.stepsPerLeg
        running: disc.pulsing
        repeat: true
        onTriggered: disc.step = (disc.step + 1) % (2 * disc.stepsPerLeg)
    }
}
