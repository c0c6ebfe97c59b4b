pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// What covers a display during a break.
Item {
    id: view

    required property BreakOverlayModel model
    readonly property int padding: 48
    /// How far the breath of the halo reaches out of the column.
    readonly property int haloReach: 72
    /// Where things move; the rest is one still picture.
    readonly property rect lively: Qt.rect(width / 2 - column.width * column.scale / 2 - haloReach, height / 2 - column.height * column.scale / 2 - haloReach, column.width * column.scale + 2 * haloReach, column.height * column.scale + 2 * haloReach)

    Accessible.role: Accessible.Pane
    Accessible.name: model.title

    Wash {
        anchors.fill: parent
        first: Glass.wallpaper2
        second: Glass.wallpaper1
        third: Glass.wallpaper4
        blur: Glass.dark ? "#2410191e" : "#24f6fafa"
        veil: Glass.glass2
    }

    Column {
        id: column
        anchors.centerIn: parent
        // A display that is lower than all this shows it smaller.
        scale: Math.min(1, (view.height - 2 * view.padding) / height, (view.width - 2 * view.padding) / width)
        spacing: view.model.isLong ? 24 : 26

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: view.model.isLong
            text: view.model.eyebrow.toUpperCase()
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            color: Glass.accent
            font.family: Appearance.monospaced
            font.pixelSize: 11
            font.weight: Font.Medium
            font.letterSpacing: 2
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

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: view.model.title
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Glass.ink
                font.pixelSize: 31
                font.weight: Font.DemiBold
                font.letterSpacing: -0.9
            }

            Text {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: view.model.body
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Glass.slate
                font.pixelSize: 15
                lineHeight: lineCount > 1 ? 1.35 : 1
            }
        }

        CadenceIndicator {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: view.model.isLong
            dots: view.model.cadenceDots
            text: view.model.cadenceText
            skippable: view.model.cadenceSkip
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

            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: view.model.coverageNote
                Accessible.role: Accessible.StaticText
                Accessible.name: text
                color: Glass.faint
                font.pixelSize: 11
            }
        }
    }
}
