import QtQuick
import Kestrelfen

/// The settings: a rail of panes at the side, and the one that was chosen.
Item {
    id: view

    required property SettingsModel model
    readonly property var application: Qt.application
    readonly property var deletion: model.deletionQuestion
    readonly property int pane: model.selectedPane

    onPaneChanged: area.scrollTo(0)

    LayoutMirroring.enabled: application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Backdrop {
        anchors.fill: parent
    }

    SettingsRail {
        id: rail
        anchors.left: parent.left
        width: 194
        height: parent.height
        model: view.model
    }

    Rectangle {
        id: rule
        anchors.left: rail.right
        width: 1
        height: parent.height
        color: Glass.rule
    }

    ScrollArea {
        id: area
        anchors.left: rule.right
        anchors.right: parent.right
        height: parent.height
        topPadding: 26
        bottomPadding: 30
        Accessible.name: view.model.title

        SettingsPane {
            x: 28
            width: area.width - 56
            model: view.model
            onDeletionWished: question.isOpen = true
        }
    }

    AppListEditor {
        anchors.fill: parent
        editor: view.model.editor
        onDone: view.model.closeEditor()
    }

    ConfirmDialog {
        id: question
        anchors.fill: parent
        title: view.deletion.title
        message: view.deletion.message
        destructiveLabel: view.deletion.confirm
        cancelLabel: view.deletion.cancel
        onCancelled: isOpen = false
        onConfirmed: {
            isOpen = false;
            view.model.deleteHistory();
        }
    }
}
