import QtQuick
import Kestrelfen

/// The card that announces a break. It is dragged by its body.
HudCard {
    id: view

    required property PreBreakWarningModel model

    signal dragBegan
    signal dragged

    Accessible.role: Accessible.AlertMessage
    Accessible.name: model.title

    MouseArea {
        width: 400
        height: column.height
        onPressed: view.dragBegan()
        onPositionChanged: view.dragged()
    }

    Column {
        id: column
        width: 400

        Item {
            width: parent.width
            height: 76

            Rectangle {
                id: counter
                x: 18
                y: 16
                width: 42
                height: 42
                radius: 21
                color: Glass.accentFill

                Text {
                    anchors.centerIn: parent
                    text: view.model.counter
                    color: Glass.overAccent
                    font.family: Appearance.monospaced
                    font.pixelSize: 15
                    font.weight: Font.DemiBold
                    Accessible.ignored: true
                }
            }

            Column {
                anchors.left: counter.right
                anchors.leftMargin: 14
                anchors.verticalCenter: counter.verticalCenter
                spacing: 3

                Text {
                    text: view.model.title
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    color: Glass.ink
                    font.pixelSize: 15
                    font.weight: Font.DemiBold
                }

                Text {
                    text: view.model.caption
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    color: Glass.slate
                    font.pixelSize: 12
                }
            }
        }

        TrackBar {
            width: parent.width
            fraction: view.model.fraction
        }

        Item {
            width: parent.width
            height: 63

            WarningButtons {
                x: 18
                y: 16
                width: parent.width - 36
                controls: view.model.controls
                dismissKey: view.model.dismissKey
                startKey: view.model.startKey
                onChosen: key => view.model.press(key)
            }
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: view.model.hint
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            color: Glass.faint
            font.pixelSize: 10
            bottomPadding: 12
        }
    }
}
