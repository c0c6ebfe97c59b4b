import QtQuick
import Kestrelfen

/// A sheet over its window: it is as large as what is put into it, or as it is told. Set `isOpen` to show it.
ModalVeil {
    id: sheet

    default property alias content: body.data
    property real sheetWidth: body.childrenRect.width + 2 * padding
    property real sheetHeight: body.childrenRect.height + 2 * padding
    property real padding: 24
    property real corner: 16
    property string spokenLabel: ""
    readonly property alias card: card

    dismissesOnClick: false
    Accessible.role: Accessible.Dialog
    Accessible.name: spokenLabel

    CardShadow {
        anchors.fill: parent
        card: Qt.rect(card.x, card.y, card.width, card.height)
        radius: card.radius
        strength: Glass.dark ? 0.45 : 0.22
        blur: 34
        drop: 14
    }

    Item {
        id: card

        readonly property real radius: sheet.corner

        anchors.centerIn: parent
        width: Math.min(sheet.sheetWidth, sheet.width)
        height: Math.min(sheet.sheetHeight, sheet.height)

        Backdrop {
            anchors.fill: parent
            radius: card.radius
            veil: Glass.glass
        }

        Rectangle {
            anchors.fill: parent
            radius: card.radius
            color: "transparent"
            border.width: 1
            border.color: Glass.hudBorder
        }

        MouseArea {
            anchors.fill: parent
        }

        Item {
            id: body
            anchors.fill: parent
            anchors.margins: sheet.padding
        }
    }
}
