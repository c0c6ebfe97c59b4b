pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The first cadence.
Column {
    id: page

    required property OnboardingModel model
    readonly property var words: model.cadence

    Label {
        width: parent.width
        text: page.words.title
        size: 21
        weight: Font.DemiBold
        tracking: -0.4
        Accessible.role: Accessible.Heading
    }

    Item {
        width: 1
        height: 7
    }

    Label {
        width: parent.width
        text: page.words.sentence
        size: 13.5
        color: Glass.slate
    }

    Item {
        width: 1
        height: 22
    }

    PresetCards {
        width: parent.width
        cards: page.model.presets
        spokenLabel: page.words.title
        onChosen: key => page.model.choosePreset(key)
    }

    Item {
        width: 1
        height: 20
    }

    PaneRows {
        width: parent.width
        list: page.model.rows
        onStepped: (key, up) => page.model.step(key, up)
        onTurned: (key, on) => page.model.turn(key, on)
    }

    Item {
        width: 1
        height: 12
        visible: error.visible
    }

    Label {
        id: error
        width: parent.width
        visible: text !== ""
        text: page.model.error
        size: 11.5
        color: Glass.danger
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.AlertMessage
    }

    Item {
        width: 1
        height: 24
    }

    Item {
        width: parent.width
        height: start.height

        SecondaryAction {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            radius: 12
            label: page.words.otherButton
            onClicked: page.model.back()
        }

        PrimaryAction {
            id: start
            anchors.right: parent.right
            radius: 12
            label: page.words.prominentButton
            onClicked: page.model.start()
        }
    }
}
