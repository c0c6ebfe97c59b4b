import QtQuick
import Kestrelfen

/// Words that open a menu.
Item {
    id: label

    required property string text
    property string symbol: ""
    property real size: 12
    property int weight: Font.Normal
    property color color: Glass.ink
    property string spokenLabel: text
    property string spokenDetail: ""

    signal clicked

    implicitWidth: row.width
    implicitHeight: row.height
    activeFocusOnTab: true
    Keys.forwardTo: [area]
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: spokenLabel
    Accessible.description: spokenDetail
    Accessible.focusable: true
    Accessible.onPressAction: label.clicked()

    Row {
        id: row
        spacing: 6

        Symbol {
            visible: label.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: label.symbol
            size: label.size
            tint: label.color
        }

        Label {
            text: label.text
            size: label.size
            weight: label.weight
            color: label.color
            Accessible.ignored: true
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.up.chevron.down"
            size: label.size - 2
            tint: Glass.slate
        }
    }

    PressArea {
        id: area
        anchors.fill: parent
        anchors.margins: -4
        control: label
        onActivated: label.clicked()
    }

    FocusRing {
        target: label
        around: 4
    }
}
