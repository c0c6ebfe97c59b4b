import QtQuick
import Kestrelfen

/// A disc that grows a little and shrinks again, easing in and out, in steps too small to be seen one by one.
Item {
    id: pulse

    property bool pulsing: true
    readonly property real greatestScale: 1.04
    readonly property int legMilliseconds: 2000
    readonly property int stepsPerLeg: 12
    property int step: 0

    onPulsingChanged: step = 0

    Disc {
        anchors.centerIn: parent
        // An even number of pixels more, so that it keeps to whole ones.
        width: pulse.width + 4
        height: pulse.height + 4
        diameter: pulse.width * (1 + (pulse.greatestScale - 1) * (1 - Math.cos(Math.PI * pulse.step / pulse.stepsPerLeg)) / 2)
        tint: Glass.accentFill
    }

    Timer {
        interval: pulse.legMilliseconds / pulse.stepsPerLeg
        running: pulse.pulsing
        repeat: true
        onTriggered: pulse.step = (pulse.step + 1) % (2 * pulse.stepsPerLeg)
    }
}
