pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The eye score, what it is made of, and the one sentence that follows from it.
GlassSurface {
    id: card

    required property var score

    implicitHeight: column.height + 32

    Column {
        id: column
        x: 18
        y: 16
        width: parent.width - 36

        Item {
            width: parent.width
            height: title.height

            Label {
                id: title
                anchors.left: parent.left
                text: card.score.title
                size: 13
                weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Label {
                anchors.right: parent.right
                anchors.baseline: title.baseline
                text: card.score.caption
                size: 11.5
                color: Glass.faint
            }
        }

        Item {
            width: parent.width
            height: value.height + 14

            Label {
                id: value
                anchors.left: parent.left
                text: card.score.value
                size: 30
                weight: Font.DemiBold
                color: Glass[card.score.valueTint]
            }

            Label {
                anchors.left: value.right
                anchors.leftMargin: 8
                anchors.baseline: value.baseline
                text: card.score.label
                size: 12
                weight: Font.Medium
                color: Glass[card.score.labelTint]
            }
        }

        Column {
            width: parent.width
            spacing: 11

            Repeater {
                model: 3
                delegate: ScoreMeter {
                    required property int index

                    width: parent?.width ?? 0
                    meter: card.score.meters[index]
                }
            }
        }

        Item {
            width: 1
            height: 14
        }

        Label {
            width: parent.width
            text: card.score.suggestion
            size: 11.5
            color: Glass.slate
            lineHeight: 1.35
            wrapMode: Text.WordWrap
        }
    }
}
