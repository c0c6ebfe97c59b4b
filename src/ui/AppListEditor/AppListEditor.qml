pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The sheet over the list of applications of one detector; it is up while there is one to edit.
SheetCard {
    id: sheet

    required property AppListModel editor
    readonly property var texts: editor ? editor.texts : {}

    signal done

    isOpen: editor !== null
    sheetWidth: 460
    sheetHeight: head.height + 16 + list.height + 20 + doneButton.height + 48
    spokenLabel: editor ? editor.title : ""
    onDismissed: sheet.done()
    Window.onActiveChanged: {
        if (Window.active && sheet.editor) {
            sheet.editor.reload();
        }
    }
    onOpened: doneButton.forceActiveFocus(Qt.OtherFocusReason)

    Column {
        id: head
        width: parent.width
        spacing: 4

        Label {
            width: parent.width
            text: sheet.spokenLabel
            size: 16
            weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            text: sheet.editor ? sheet.editor.sentence : ""
            size: 12.5
            color: Glass.slate
            wrapMode: Text.WordWrap
        }
    }

    ScrollArea {
        id: list
        anchors.top: head.bottom
        anchors.topMargin: 16
        width: parent.width
        height: Math.max(60, Math.min(contentHeight, 340, sheet.height - head.height - doneButton.height - 132))
        Accessible.name: sheet.spokenLabel

        AppListColumn {
            width: list.width
            editor: sheet.editor
            onKeyboardLost: doneButton.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    SecondaryAction {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        label: sheet.texts.restore ?? ""
        onClicked: sheet.editor.restoreDefaults()
    }

    PrimaryAction {
        id: doneButton
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        label: sheet.texts.done ?? ""
        onClicked: sheet.done()
    }
}
