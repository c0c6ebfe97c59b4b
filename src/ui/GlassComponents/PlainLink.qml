import QtQuick
import Kestrelfen

/// A button that is only its words.
GlassButton {
    textColor: Glass.accent
    textSize: 12
    textWeight: Font.Medium
    radius: 4
    fill: "transparent"
    pressedFill: "transparent"
    line: "transparent"
    horizontalPadding: 0
    verticalPadding: 0
    opacity: enabled ? (isDown ? 0.6 : 1) : 0.4
}
