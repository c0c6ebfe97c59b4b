import QtQuick
import Kestrelfen

/// A destructive button.
GlassButton {
    radius: 11
    textColor: Glass.danger
    fill: Glass.faded(Glass.danger, 0.12)
    pressedFill: Glass.faded(Glass.danger, 0.2)
    line: Glass.faded(Glass.danger, 0.35)
}
