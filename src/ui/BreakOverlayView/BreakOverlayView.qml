pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// What covers a display during a break.
Item {
    id: view

    required property BreakOverlayModel model
    readonly property int padding: 48
    /// How far the breath of the halo reaches out of the column.
    readonly property int haloReach: 96
    /// Where things move; the rest is one still picture.
    readonly property rect lively: Qt.rect(width / 2 - column.width * column.scale / 2 - haloReach, height / 2 - column.height * column.scale / 2 - haloReach, column.width * column.scale + 2 * haloReach, column.height * column.scale + 2 * haloReach)

    Accessible.role: Accessible.Pane
    Accessible.name: model.title

    Backdrop {
        anchors.fill: parent
    }

    Column {
        id: column
        anchors.centerIn: parent
        // A display that is lower than all this shows it smaller.
        scale: Math.min(1, (view.height - 2 * view.padding) / height, (view.width - 2 * view.padding) / width)
        spacing: view.model.isLong ? 24 : 26

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: view.model.isLong
            text: view.model.eyebrow
            upperCased: true
            color: Glass.accent
            monospaced: true
            size: 11
            weight: Font.Medium
            tracking: 2
        }

        BreathingRing {
            anchors.horizontalCenter: parent.horizontalCenter
            isLong: view.model.isLong
            remaining: view.model.ringRemaining
            label: view.model.ringLabel
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            width: view.model.isLong ? 520 : 560
            spacing: 11

            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: view.model.title
                size: 31
                weight: Font.DemiBold
                Accessible.role: Accessible.Heading
                tracking: -0.9
            }

            Label {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: view.model.body
                color: Glass.slate
                size: 15
                lineHeight: lineCount > 1 ? 1.35 : 1
            }
        }

        CadenceIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: view.model.isLong
            dots: view.model.cadenceDots
            text: view.model.cadenceText
            skippable: view.model.cadenceSkip
            skipText: view.model.cadenceSkipText
            onSkipped: view.model.skip()
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 12

            Repeater {
                model: view.model.controls
                delegate: BreakOverlayButton {
                    onChosen: key => view.model.press(key)
                }
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: view.model.coverageNote
                color: Glass.faint
                size: 11
            }
        }
    }
}
