pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// One thing under another in a pane, with what stands over it.
Column {
    id: block

    required property string kind
    required property string eyebrow
    required property string heading
    required property string words
    required property string tint
    required property KeyedListModel rows
    required property var previews
    required property var buttons
    required property SettingsModel settings
    readonly property bool belongsAbove: kind === "message" || kind === "note"

    signal deletionWished

    topPadding: belongsAbove ? 8 : 20
    spacing: 8

    Eyebrow {
        anchors.left: parent.left
        anchors.leftMargin: 2
        visible: text !== ""
        text: block.eyebrow
    }

    // A Loader of this Qt cannot make bound components.
    Repeater {
        model: 1
        delegate: {
            switch (block.kind) {
            case "rows":
                return rowsView;
            case "cards":
            case "modeCards":
                return cardsView;
            case "callout":
            case "disclosure":
                return calloutView;
            case "status":
                return statusView;
            case "previews":
                return previewsView;
            case "buttons":
                return buttonsView;
            default:
                return wordsView;
            }
        }
    }

    Component {
        id: rowsView

        PaneRows {
            width: block.width
            list: block.rows
            onStepped: (key, up) => block.settings.step(key, up)
            onChosen: (key, word) => block.settings.choose(key, word)
            onTurned: (key, on) => block.settings.turn(key, on)
            onPressed: key => block.settings.press(key)
        }
    }

    Component {
        id: cardsView

        PaneCards {
            width: block.width
            cards: block.rows
            spokenLabel: block.settings.title
            areModes: block.kind === "modeCards"
            onChosen: (key, word) => block.settings.choose(key, word)
        }
    }

    Component {
        id: calloutView

        PaneCallout {
            width: block.width
            title: block.heading
            words: block.words
            isWarning: block.tint === "amber"
        }
    }

    Component {
        id: statusView

        PaneStatus {
            width: block.width
            words: block.words
            tint: block.tint === "accent" ? Glass.accent : Glass.faint
        }
    }

    Component {
        id: previewsView

        NotificationPreviews {
            width: block.width
            previews: block.previews
        }
    }

    Component {
        id: buttonsView

        HistoryDataButtons {
            buttons: block.buttons
            onExportWished: block.settings.exportHistory()
            onDeletionWished: block.deletionWished()
        }
    }

    Component {
        id: wordsView

        Label {
            width: block.width
            readonly property bool isMessage: block.kind === "message"

            text: block.words
            size: block.kind === "footnote" ? 10 : block.tint === "danger" || !isMessage ? 11.5 : 12
            color: block.tint === "danger" ? Glass.danger : isMessage ? Glass.slate : Glass.faint
            wrapMode: Text.WordWrap
            Accessible.role: isMessage ? Accessible.AlertMessage : Accessible.StaticText
        }
    }
}
