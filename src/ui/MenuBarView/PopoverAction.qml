import QtQuick
import Kestrelfen

/// One of the popover's three buttons.
GlassButton {
    id: button

    property bool prominent: false

    radius: 11
    textSize: 12.5
    textWeight: prominent ? Font.DemiBold : Font.Normal
    textColor: prominent ? Glass.overProminent : Glass.ink
    horizontalPadding: 4
    fill: prominent ? Glass.prominent : Glass.glass2
    pressedFill: prominent ? Glass.prominent : Glass.glass
    line: prominent ? "transparent" : Glass.hairline

    CardShadow {
        z: -1
        visible: button.prominent
        x: -20
        y: -15
        width: button.width + 40
        height: button.height + 40
        card: Qt.rect(20, 15, button.width, button.height)
        radius: button.radius
        tint: Glass.prominent
        strength: 0.35
        blur: 10
        drop: 5
    }
}
