pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The length of the cycle that a long break ends, as dots and in words.
GlassSurface {
    id: indicator

    required property int dots
    required property string text
    required property bool skippable
    required property string skipText

    signal skipped

    implicitWidth: row.implicitWidth + 32
    implicitHeight: row.implicitHeight + 18
    radius: 12

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 9

        Repeater {
            model: indicator.dots
            delegate: Rectangle {
                id: dot

                required property int index
                readonly property bool isLast: index === indicator.dots - 1

                anchors.verticalCenter: parent.verticalCenter
                width: 8
                height: 8
                radius: 4
                color: Glass.accent

                Rectangle {
                    anchors.centerIn: parent
                    visible: dot.isLast
                    width: 16
                    height: 16
                    radius: 8
                    color: "transparent"
                    border.width: 4
                    border.color: Glass.faded(Glass.accent, 0.25)
                }
            }
        }

        Item {
            anchors.verticalCenter: parent.verticalCenter
            width: 9
            height: 14

            Rectangle {
                anchors.centerIn: parent
                width: 1
                height: 14
                color: Glass.rule
            }
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: indicator.text
            color: Glass.slate
            size: 12
        }

        Item {
            anchors.verticalCenter: parent.verticalCenter
            visible: indicator.skippable
            width: skip.implicitWidth - skip.horizontalPadding
            height: 1

            // Its padding makes it easier to hit, and of it only the leading one counts.
            GlassButton {
                id: skip
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                label: indicator.skipText
                textSize: 12
                textColor: Glass.faint
                fill: "transparent"
                pressedFill: "transparent"
                line: "transparent"
                horizontalPadding: 4
                verticalPadding: 8
                onClicked: indicator.skipped()
            }
        }
    }
}
