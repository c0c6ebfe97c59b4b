import QtQuick
import Kestrelfen

/// A switch. It shows `isOn` and asks for the change; whoever holds the value makes it.
Item {
    id: toggle

    required property bool isOn
    property string spokenLabel: ""
    property string spokenDetail: ""

    signal toggled

    implicitWidth: 42
    implicitHeight: 25
    opacity: enabled ? 1 : 0.4

    activeFocusOnTab: enabled
    Keys.forwardTo: [area]
    Accessible.role: Accessible.CheckBox
    Accessible.name: spokenLabel
    Accessible.description: enabled ? spokenDetail : SpokenWords.unavailable
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.focusable: enabled
    Accessible.onPressAction: area.act()
    Accessible.onToggleAction: area.act()

    SpringValue {
        id: place
        target: toggle.isOn ? 1 : 0
        response: 0.18
        dampingFraction: 0.85
    }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Glass.mixed(Glass.sunk, Glass.accent, Math.min(1, place.value))
        border.width: 1
        border.color: Glass.over(Glass.faded(Glass.rule, Math.max(0, 1 - place.value)), color)
    }

    ToggleKnob {
        x: 2.5 + (mirrored ? 1 - place.value : place.value) * (toggle.width - width - 5)
        y: 2.5
        color: Glass.highContrast ? Glass.mixed(Glass.white, Glass.overAccent, Math.max(0, Math.min(1, place.value))) : Glass.white

        readonly property bool mirrored: LayoutMirroring.enabled
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: toggle
        onActivated: toggle.toggled()
    }

    FocusRing {
        target: toggle
        around: toggle.height / 2
    }
}
