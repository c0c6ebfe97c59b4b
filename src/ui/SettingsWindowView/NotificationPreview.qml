import QtQuick
import Kestrelfen

/// One notification as it would look.
GlassSurface {
    id: preview

    required property string title
    required property string time
    required property string body
    required property string spoken

    implicitHeight: Math.max(34, texts.implicitHeight) + 26
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 14
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
        anchors.left: parent.left
        anchors.leftMargin: 60
        y: 13
        width: parent.width - 60 - 14
        spacing: 2

        Item {
            width: parent.width
            height: name.implicitHeight

            Label {
                id: name
                anchors.left: parent.left
                text: preview.title
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
