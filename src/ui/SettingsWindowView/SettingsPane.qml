pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The chosen pane from top to bottom.
Column {
    id: pane

    required property SettingsModel model

    signal deletionWished

    MarkTile {
        anchors.left: parent.left
        visible: pane.model.hasMark
    }

    Item {
        width: 1
        height: 20
        visible: pane.model.hasMark
    }

    Column {
        width: parent.width
        spacing: 4

        Label {
            width: parent.width
            text: pane.model.title
            size: 18
            weight: Font.DemiBold
            tracking: -0.2
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            text: pane.model.sentence
            size: 13
            color: Glass.slate
            wrapMode: Text.WordWrap
        }
    }

    Repeater {
        model: pane.model.blocks
        delegate: PaneBlock {
            width: pane.width
            settings: pane.model
            onDeletionWished: pane.deletionWished()
        }
    }
}
