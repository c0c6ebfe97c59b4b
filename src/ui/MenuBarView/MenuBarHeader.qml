import QtQuick
import Kestrelfen

/// Where the cycle stands: the ring, and the words beside it.
Item {
    id: header

    required property MenuBarModel model

    implicitHeight: words.height + 22 + 18

    CountdownRing {
        id: ring
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: words.verticalCenter
        remaining: header.model.ringRemaining
        label: header.model.ringLabel
        diameter: 88
        lineWidth: 6
        labelSize: 19
    }

    Column {
        id: words
        anchors.left: ring.right
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 20
        y: 22

        Eyebrow {
            anchors.left: parent.left
            text: header.model.eyebrow
        }

        Item {
            width: 1
            height: 5
        }

        Label {
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width)
            text: header.model.value
            size: 16
            weight: Font.DemiBold
            elide: Text.ElideRight
        }

        Item {
            width: parent.width
            height: 4 + twoLines.implicitHeight

            Label {
                id: twoLines
                visible: false
                size: 12.5
                text: "\n"
            }

            Label {
                y: 4
                width: parent.width
                text: header.model.caption
                size: 12.5
                color: Glass.slate
                wrapMode: Text.WordWrap
                maximumLineCount: 2
                elide: Text.ElideRight
            }
        }

        Item {
            width: 1
            height: 9
        }

        CycleChip {
            anchors.left: parent.left
            text: header.model.cycleText
        }
    }
}
