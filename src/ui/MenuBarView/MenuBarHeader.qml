import QtQuick
import Kestrelfen

/// The words beside the popover's ring.
Column {
    id: header

    required property MenuBarModel model

    Text {
        text: header.model.eyebrow.toUpperCase()
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        color: Glass.faint
        font.family: Appearance.monospaced
        font.pixelSize: 10
        font.weight: Font.Medium
        font.letterSpacing: 1.2
    }

    Text {
        topPadding: 5
        text: header.model.value
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        color: Glass.ink
        font.pixelSize: 16
        font.weight: Font.DemiBold
    }

    Text {
        width: parent.width
        height: 38
        topPadding: 4
        wrapMode: Text.WordWrap
        text: header.model.caption
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        color: Glass.slate
        font.pixelSize: 12
    }

    Item {
        width: 1
        height: 9
    }

    Rectangle {
        implicitWidth: chip.implicitWidth + 18
        implicitHeight: chip.implicitHeight + 8
        radius: height / 2
        color: Glass.sunk

        Row {
            id: chip
            anchors.centerIn: parent
            spacing: 6

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 6
                height: 6
                radius: 3
                color: Glass.accent
            }

            Text {
                text: header.model.cycleText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Glass.slate
                font.pixelSize: 11
            }
        }
    }
}
