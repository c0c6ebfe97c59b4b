import QtQuick
import Kestrelfen

/// One notification as it would look.
GlassSurface {
    id: preview

    required property string time
    required property string body

    implicitHeight: Math.max(34, texts.implicitHeight) + 26
    Accessible.role: Accessible.StaticText
    Accessible.name: "Kestrelfen, " + time + ": " + body

    Rectangle {
        x: 14
        y: 13
        width: 34
        height: 34
        radius: 10
        color: Glass.accent

        Symbol {
            anchors.centerIn: parent
            name: "mark"
            size: 17
            tint: Glass.overProminent
        }
    }

    Column {
        id: texts
        x: 60
        y: 13
        width: parent.width - 60 - 14
        spacing: 2

        Item {
            width: parent.width
            height: name.implicitHeight

            Label {
                id: name
                text: "Kestrelfen"
                size: 13
                weight: Font.DemiBold
                Accessible.ignored: true
            }

            Label {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: preview.time
                size: 10
                color: Glass.faint
                Accessible.ignored: true
            }
        }

        Label {
            width: parent.width
            text: preview.body
            size: 12.5
            color: Glass.slate
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }
    }
}
