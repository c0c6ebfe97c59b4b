import QtQuick
import Kestrelfen

/// One cadence to choose.
Rectangle {
    id: choice

    required property string key
    required property string title
    required property string headline
    required property string note
    required property bool isSelected
    readonly property string spokenLabel: title

    signal activated
    signal moved(int by)

    implicitHeight: texts.implicitHeight + 28
    radius: 15
    color: isSelected ? Glass.prominent : Glass.glass2
    border.width: Glass.dark && !isSelected ? 1 : 0
    border.color: Glass.over(Glass.hairline, color)

    activeFocusOnTab: isSelected
    Keys.forwardTo: [area]
    Keys.onLeftPressed: choice.moved(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: choice.moved(LayoutMirroring.enabled ? -1 : 1)
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.description: headline + ", " + note
    Accessible.checkable: true
    Accessible.checked: isSelected
    Accessible.focusable: true
    Accessible.onPressAction: choice.activated()
    Accessible.onToggleAction: choice.activated()

    CardShadow {
        z: -1
        x: -32
        y: -24
        width: choice.width + 64
        height: choice.height + 64
        visible: choice.isSelected
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
        spacing: 4

        Label {
            text: choice.title
            size: 12.5
            weight: Font.Medium
            color: choice.isSelected ? Glass.overProminent : Glass.slate
            Accessible.ignored: true
        }

        Label {
            text: choice.headline
            size: 22
            weight: Font.DemiBold
            color: choice.isSelected ? Glass.overProminent : Glass.ink
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            text: choice.note
            size: 9.5
            tracking: 1
            color: choice.isSelected ? Glass.faded(Glass.overProminent, Glass.highContrast ? 1 : 0.85) : Glass.faint
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
