import QtQuick
import Kestrelfen

/// What can be done to the history as a whole.
Row {
    id: row

    /// To export and to delete: each has a `label` and whether it `isEnabled`.
    required property var buttons

    signal exportWished
    signal deletionWished

    spacing: 12

    SecondaryAction {
        label: row.buttons[0].label
        enabled: row.buttons[0].isEnabled
        onClicked: row.exportWished()
    }

    DangerAction {
        label: row.buttons[1].label
        enabled: row.buttons[1].isEnabled
        onClicked: row.deletionWished()
    }
}
