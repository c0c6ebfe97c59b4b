import QtQuick
import Kestrelfen

/// A translucent card with a bright top edge; what is put into it lies upon it.
Rectangle {
    id: surface

    property bool recessed: false

    radius: 16
    color: recessed ? Glass.glass2 : Glass.glass
    border.width: 1
    border.color: Glass.over(Glass.hairline, color)

    TopEdge {
        width: parent.width
        inset: surface.radius / 2
        radius: surface.radius
        tint: Glass.highlight
    }
}
