pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A short list of things to work on.
Item {
    id: view

    required property TasksModel model
    readonly property var texts: model.texts

    onVisibleChanged: {
        // The model goes before the view does.
        if (model) {
            visible ? model.show() : model.hide();
        }
    }
    Component.onCompleted: {
        if (visible) {
            model.show();
        }
    }
    Component.onDestruction: model.hide()

    TaskComposer {
        id: composer
        x: 24
        y: 22
        width: parent.width - 48
        model: view.model
    }

    Column {
        id: emptyState
        anchors.horizontalCenter: parent.horizontalCenter
        y: composer.y + composer.height + 14 + 20
        width: Math.min(420, parent.width - 88)
        visible: view.model.isEmpty
        spacing: 6

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: view.texts.emptyTitle
            size: 15
            weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: view.texts.emptyText
            size: 12.5
            color: Glass.slate
            lineHeight: 1.35
            wrapMode: Text.WordWrap
        }
    }

    GlassSurface {
        id: table

        readonly property real room: view.height - y - 14 - footer.height - 26

        x: 24
        y: composer.y + composer.height + 14
        width: parent.width - 48
        height: Math.min(room, list.contentHeight)
        radius: 14
        clip: true
        visible: !view.model.isEmpty

        GlassList {
            id: list
            width: parent.width
            height: table.room
            model: view.model.rows
            spokenLabel: view.model.doneText
            delegate: TaskListRow {
                width: list.width
                model: view.model
                onMenuAsked: (anchor, row) => {
                    menu.row = row;
                    menu.open(anchor);
                }
            }
        }
    }

    TaskFooter {
        id: footer
        x: 24
        y: (view.model.isEmpty ? emptyState.y + emptyState.height + 20 : table.y + table.height) + 14
        width: parent.width - 48
        model: view.model
    }

    PopupMenu {
        id: menu

        property var row: ({})

        spokenLabel: row.title ?? ""
        entries: row.id ? view.model.menuEntries(row) : []
        onChosen: value => view.model.take(value, row.id)
    }

    ConfirmDialog {
        isOpen: view.model.deleteQuestion !== ""
        title: view.model.deleteQuestion
        message: view.texts.message
        destructiveLabel: view.texts.confirm
        cancelLabel: view.texts.cancel
        onConfirmed: view.model.confirmDeletion()
        onCancelled: view.model.cancelQuestion()
    }

    ConfirmDialog {
        isOpen: view.model.clearQuestion !== ""
        title: view.model.clearQuestion
        message: view.texts.message
        destructiveLabel: view.texts.confirm
        cancelLabel: view.texts.cancel
        onConfirmed: view.model.confirmClearing()
        onCancelled: view.model.cancelQuestion()
    }
}
