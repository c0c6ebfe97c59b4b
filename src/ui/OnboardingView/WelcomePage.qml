pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// What the timer promises.
Column {
    id: page

    required property OnboardingModel model
    readonly property var words: model.welcome

    MarkTile {
        anchors.horizontalCenter: parent.horizontalCenter
    }

    Item {
        width: 1
        height: 20
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: page.words.title
        size: 26
        weight: Font.DemiBold
        tracking: -0.3
        Accessible.role: Accessible.Heading
    }

    Item {
        width: 1
        height: 8
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 400)
        text: page.words.sentence
        size: 14
        color: Glass.slate
        lineHeight: 1.35
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }

    Item {
        width: 1
        height: 24
    }

    Column {
        width: parent.width
        spacing: 14

        Repeater {
            model: page.model.promises
            delegate: PromiseRow {
                required property var modelData

                width: page.width
                title: modelData.title
                line: modelData.line
            }
        }
    }

    Item {
        width: 1
        height: 26
    }

    PrimaryAction {
        width: parent.width
        radius: 13
        label: page.words.prominentButton
        onClicked: page.model.setUp()
    }

    Item {
        width: 1
        height: 14
    }

    PlainLink {
        anchors.horizontalCenter: parent.horizontalCenter
        label: page.words.otherButton
        textSize: 12.5
        textWeight: Font.Normal
        textColor: Glass.faint
        onClicked: page.model.useDefaults()
    }
}
