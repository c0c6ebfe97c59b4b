import QtQuick
import Kestrelfen

/// Asks before something is destroyed. Escape cancels, and Return does until the keyboard goes elsewhere.
SheetCard {
    id: dialog

    required property string title
    required property string message
    required property string destructiveLabel
    required property string cancelLabel

    signal confirmed
    signal cancelled

    spokenLabel: title
    padding: 22
    onDismissed: dialog.cancelled()
    onOpened: cancel.forceActiveFocus(Qt.TabFocusReason)

    Column {
        width: Math.min(340, dialog.width - 80)
        spacing: 8

        Label {
            width: parent.width
            text: dialog.title
            size: 15
            weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            wrapMode: Text.WordWrap
        }

        Label {
            width: parent.width
            text: dialog.message
            size: 12.5
            color: Glass.slate
            lineHeight: 1.35
            wrapMode: Text.WordWrap
        }

        Item {
            width: 1
            height: 6
        }

        Row {
            anchors.right: parent.right
            spacing: 10

            SecondaryAction {
                id: cancel
                label: dialog.cancelLabel
                onClicked: dialog.cancelled()
            }

            DangerAction {
                label: dialog.destructiveLabel
                onClicked: dialog.confirmed()
            }
        }
    }
}
