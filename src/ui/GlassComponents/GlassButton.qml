import QtQuick
import Kestrelfen

/// A button: a label on a rounded fill. The looks are the caller's; the click, the keys, the keyboard's ring and the
/// spoken name are here.
Rectangle {
    id: button

    required property string label
    property string spokenLabel: label
    property color textColor: Glass.ink
    property color fill: Glass.glass2
    property color pressedFill: Glass.glass
    property color line: Glass.hairline
    property real textSize: 13
    property int textWeight: Font.Normal
    property string textFamily: Appearance.sans
    property real horizontalPadding: 16
    property real verticalPadding: 10
    readonly property bool isDown: area.isDown
    readonly property bool isHovered: area.containsMouse

    signal clicked

    implicitWidth: caption.implicitWidth + 2 * horizontalPadding
    implicitHeight: caption.implicitHeight + 2 * verticalPadding
    radius: 12
    color: isDown ? pressedFill : fill
    border.width: 1
    border.color: Glass.over(line, color)
    opacity: enabled ? 1 : 0.4

    activeFocusOnTab: enabled
    Keys.forwardTo: [area]
    Accessible.role: Accessible.Button
    Accessible.name: spokenLabel
    Accessible.description: enabled ? "" : SpokenWords.unavailable
    Accessible.focusable: enabled
    Accessible.onPressAction: area.act()

    Label {
        id: caption
        anchors.centerIn: parent
        width: Math.min(implicitWidth, button.width)
        text: button.label
        color: button.textColor
        size: button.textSize
        weight: button.textWeight
        monospaced: button.textFamily === Appearance.monospaced
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: button
        hoverEnabled: true
        onActivated: button.clicked()
    }

    FocusRing {
        target: button
        around: button.radius
    }
}
