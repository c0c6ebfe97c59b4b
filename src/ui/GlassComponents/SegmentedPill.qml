import QtQuick
import Kestrelfen

/// One pill of a row of them.
Rectangle {
    id: pill

    required property string label
    required property bool isSelected
    required property bool isAccented
    readonly property string spokenLabel: label

    signal activated
    /// The arrow keys ask for a neighbour, in the order of the options.
    signal moved(int by)

    implicitWidth: caption.implicitWidth + 22
    implicitHeight: caption.implicitHeight + 10
    radius: 7
    color: !isSelected ? "transparent" : isAccented ? Glass.prominent : Glass.glass

    Keys.forwardTo: [area]
    Keys.onUpPressed: pill.moved(-1)
    Keys.onDownPressed: pill.moved(1)
    Keys.onRightPressed: pill.moved(LayoutMirroring.enabled ? -1 : 1)
    Keys.onLeftPressed: pill.moved(LayoutMirroring.enabled ? 1 : -1)
    Accessible.role: Accessible.RadioButton
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: isSelected
    Accessible.focusable: enabled
    Accessible.onPressAction: area.act()
    Accessible.onToggleAction: area.act()

    Label {
        id: caption
        anchors.centerIn: parent
        text: pill.label
        size: 12
        weight: pill.isSelected ? Font.DemiBold : Font.Normal
        color: !pill.isSelected ? Glass.slate : pill.isAccented ? Glass.overProminent : Glass.ink
        Accessible.ignored: true
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: pill
        takesKeyboard: true
        onActivated: pill.activated()
    }

    FocusRing {
        target: pill
        around: pill.radius
        gap: 1
    }
}
