import QtQuick
import Kestrelfen

/// The program's mark.
Rectangle {
    id: tile

    width: 66
    height: 66
    radius: 20
    color: Glass.prominent

    CardShadow {
        z: -1
        x: -32
        y: -24
        width: tile.width + 64
        height: tile.height + 64
        card: Qt.rect(32, 24, tile.width, tile.height)
        radius: tile.radius
        tint: Glass.prominent
        strength: 0.55
        blur: 16
        drop: 8
    }

    Symbol {
        anchors.centerIn: parent
        name: "mark"
        size: 34
        tint: Glass.overProminent
    }
}
