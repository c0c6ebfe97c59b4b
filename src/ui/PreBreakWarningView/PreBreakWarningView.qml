import QtQuick
import Kestrelfen

/// The card that announces a break. It is dragged by its body.
HudCard {
    id: view

    required property PreBreakWarningModel model
    /// Kept as it was when the card came: a screen reader says each new name of an alert.
    property string announcement: ""

    signal dragBegan
    signal dragged

    Accessible.role: Accessible.AlertMessage
    Accessible.name: announcement
    Component.onCompleted: announcement = model.title

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
            height: 34 + Math.max(counter.height, words.height)

            Item {
                id: counter
                x: 18
                y: 16 + Math.max(0, (words.height - height) / 2)
                width: 42
                height: 42

                PulsingDisc {
                    anchors.fill: parent
                    pulsing: !Appearance.reducedMotion
                }

                Label {
                    anchors.centerIn: parent
                    text: view.model.counter
                    color: Glass.overAccent
                    monospaced: true
                    size: 15
                    weight: Font.DemiBold
                    Accessible.ignored: true
                }
            }

            Column {
                id: words
                anchors.left: counter.right
                anchors.leftMargin: 14
                anchors.right: parent.right
                anchors.rightMargin: 18
                anchors.verticalCenter: counter.verticalCenter
                spacing: 3

                Label {
                    width: parent.width
                    text: view.model.title
                    size: 15
                    weight: Font.DemiBold
                    wrapMode: Text.WordWrap
                }

                Label {
                    width: parent.width
                    text: view.model.caption
                    color: Glass.slate
                    size: 12.5
                    wrapMode: Text.WordWrap
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

        Item {
            width: parent.width
            height: hint.implicitHeight + 12
            visible: hint.text !== ""

            Label {
                id: hint
                anchors.horizontalCenter: parent.horizontalCenter
                text: view.model.hint
                color: Glass.faint
                size: 10
            }
        }
    }
}
