import QtQuick
import Kestrelfen

/// Shows which control the keyboard acts on; not drawn while the pointer is used.
Rectangle {
    id: ring

    required property Item target
    property real around: 9
    property real gap: 2

    anchors.fill: target
    anchors.margins: -gap - border.width
    visible: target.activeFocus && Appearance.isKeyboardInUse
    radius: around + gap + border.width
    color: "transparent"
    border.width: 2
    border.color: Glass.accent
}
