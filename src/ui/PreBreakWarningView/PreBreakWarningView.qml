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

            Item {
                id: counter
                x: 18
                y: 16
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
                anchors.left: counter.right
                anchors.leftMargin: 14
                anchors.verticalCenter: counter.verticalCenter
                spacing: 3

                Label {
                    text: view.model.title
                    size: 15
                    weight: Font.DemiBold
                }

                Label {
                    text: view.model.caption
                    color: Glass.slate
                    size: 12.5
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
