import QtQuick
import Kestrelfen

/// The strongest button.
GlassButton {
    id: button

    /// Pressed, the whole is darkened.
    readonly property real shift: isDown ? -0.06 : 0

    textSize: 13.5
    textWeight: Font.DemiBold
    textColor: Glass.shifted(Glass.overProminent, shift)
    verticalPadding: 11
    radius: 11
    fill: Glass.prominent
    pressedFill: Glass.shifted(Glass.prominent, shift)
    line: Glass.faded(Glass.shifted(Glass.white, shift), 0.35)

    CardShadow {
        z: -1
        x: -24
        y: -18
        width: button.width + 48
        height: button.height + 48
        card: Qt.rect(24, 18, button.width, button.height)
        radius: button.radius
        tint: Glass.prominent
        strength: 0.45
        blur: 12
        drop: 6
    }
}
