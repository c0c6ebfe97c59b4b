pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// One labelled control of a group.
SettingRow {
    id: row

    required caption
    required property string key
    required property string captionToken
    required property string button
    required property string spokenButton
    required property bool isButtonPlain
    required property bool offered
    required property string control
    required property string value
    required property bool isInvalid
    required property bool canDecrement
    required property bool canIncrement
    required property string decrementLabel
    required property string incrementLabel
    required property var options
    required property bool isAccented
    required property bool isOn
    required property string mood

    signal stepped(bool up)
    signal chosen(string word)
    signal turned(bool on)
    signal pressed

    captionTint: captionToken === "amber" ? Glass.amber : Glass.faint

    // A Loader of this Qt cannot make bound components.
    Repeater {
        model: row.button !== "" ? 1 : 0
        delegate: row.isButtonPlain ? plainButton : secondaryButton
    }

    Repeater {
        model: 1
        delegate: {
            switch (row.control) {
            case "stepper":
                return stepper;
            case "pills":
                return pills;
            case "told":
                return told;
            default:
                return toggle;
            }
        }
    }

    Component {
        id: plainButton

        PlainLink {
            anchors.verticalCenter: parent?.verticalCenter
            label: row.button
            spokenLabel: row.spokenButton
            onClicked: row.pressed()
        }
    }

    Component {
        id: secondaryButton

        SecondaryAction {
            anchors.verticalCenter: parent?.verticalCenter
            label: row.button
            spokenLabel: row.spokenButton
            textSize: 12
            horizontalPadding: 12
            verticalPadding: 6
            radius: 9
            onClicked: row.pressed()
        }
    }

    Component {
        id: stepper

        StepperControl {
            anchors.verticalCenter: parent?.verticalCenter
            value: row.value
            isInvalid: row.isInvalid
            canDecrement: row.canDecrement
            canIncrement: row.canIncrement
            spokenLabel: row.title
            decrementLabel: row.decrementLabel
            incrementLabel: row.incrementLabel
            onDecrement: row.stepped(false)
            onIncrement: row.stepped(true)
        }
    }

    Component {
        id: pills

        SegmentedPills {
            anchors.verticalCenter: parent?.verticalCenter
            options: row.options
            selection: row.value
            accentSelection: row.isAccented
            spokenLabel: row.title
            spokenDetail: row.caption
            onChosen: word => row.chosen(word)
        }
    }

    Component {
        id: toggle

        GlassToggle {
            anchors.verticalCenter: parent?.verticalCenter
            isOn: row.isOn
            enabled: row.offered
            spokenLabel: row.title
            spokenDetail: row.caption
            onToggled: row.turned(!row.isOn)
        }
    }

    Component {
        id: told

        ToldWord {
            anchors.verticalCenter: parent?.verticalCenter
            word: row.value
            mood: row.mood
            spokenLabel: row.title + ": " + row.value
        }
    }
}
