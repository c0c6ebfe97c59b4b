import QtQuick
import Kestrelfen

/// A card that can be chosen: filled when it is, or outlined.
Rectangle {
    id: choice

    required property string key
    required property string value
    required property string title
    required property string caption
    required property bool isOn
    property bool isOutlined: false
    readonly property bool isFilled: isOn && !isOutlined
    readonly property string spokenLabel: title

    signal activated
    signal moved(int by)

    implicitHeight: texts.implicitHeight + 28
    radius: 15
    color: isFilled ? Glass.prominent : Glass.glass2
    border.width: isOn && isOutlined ? 1.5 : Glass.dark && !isFilled ? 1 : 0
    border.color: isOn && isOutlined ? Glass.accent : Glass.over(Glass.hairline, color)

    // One stop for the keyboard: the arrow keys do the rest.
    activeFocusOnTab: isOn
    Keys.forwardTo: [area]
    Keys.onLeftPressed: choice.moved(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: choice.moved(LayoutMirroring.enabled ? -1 : 1)
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.description: caption
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.focusable: true
    Accessible.onPressAction: choice.activated()
    Accessible.onToggleAction: choice.activated()

    CardShadow {
        z: -1
        x: -32
        y: -24
        width: choice.width + 64
        height: choice.height + 64
        visible: choice.isFilled
        card: Qt.rect(32, 24, choice.width, choice.height)
        radius: choice.radius
        tint: Glass.prominent
        strength: 0.4
        blur: 16
        drop: 7
    }

    Column {
        id: texts
        x: 16
        y: 14
        width: parent.width - 32
        spacing: 2

        Eyebrow {
            visible: choice.isOutlined
            text: "Mode"
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: choice.title
            size: 14
            weight: Font.DemiBold
            color: choice.isFilled ? Glass.overProminent : Glass.ink
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: choice.caption
            size: 11.5
            color: choice.isFilled ? Glass.overProminent : Glass.slate
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: choice
        onActivated: choice.activated()
    }

    FocusRing {
        target: choice
        around: choice.radius
    }
}
