import QtQuick
import Kestrelfen

/// One of a row of cards that exclude each other: filled when it is selected, or outlined. What is declared in it stands
/// from top to bottom.
Rectangle {
    id: choice

    required property string title
    required property bool isSelected
    property string spokenDetail: ""
    property bool isOutlined: false
    property alias spacing: column.spacing
    default property alias texts: column.data
    readonly property bool isFilled: isSelected && !isOutlined
    readonly property string spokenLabel: title

    signal activated
    /// The arrow keys ask for a neighbour, in the order of the cards.
    signal moved(int by)

    implicitHeight: column.implicitHeight + 28
    radius: 15
    color: isFilled ? Glass.prominent : Glass.glass2
    border.width: Glass.dark && !isSelected ? 1 : 0
    border.color: Glass.over(Glass.hairline, color)

    // One stop for the keyboard: the arrow keys do the rest. Where the keyboard is, it cannot be taken away.
    activeFocusOnTab: isSelected || activeFocus
    Keys.forwardTo: [area]
    Keys.onLeftPressed: choice.moved(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: choice.moved(LayoutMirroring.enabled ? -1 : 1)
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.description: spokenDetail
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
        visible: choice.isFilled
        card: Qt.rect(32, 24, choice.width, choice.height)
        radius: choice.radius
        tint: Glass.prominent
        strength: 0.4
        blur: 16
        drop: 7
    }

    Outline {
        anchors.fill: parent
        visible: choice.isSelected && choice.isOutlined
        radius: choice.radius
        lineWidth: 1.5
        tint: Glass.accent
    }

    Column {
        id: column
        x: 16
        y: 14
        width: parent.width - 32
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: choice
        takesKeyboard: true
        onActivated: choice.activated()
    }

    FocusRing {
        target: choice
        around: choice.radius
    }
}
