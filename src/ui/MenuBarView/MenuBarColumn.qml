import QtQuick
import Kestrelfen

/// The popover's parts, one below the other.
Column {
    id: column

    required property MenuBarModel model

    component Rule: Rectangle {
        width: parent?.width ?? 0
        height: 1
        color: Glass.rule
    }

    MenuBarHeader {
        width: parent.width
        model: column.model
    }

    MenuBarActionRow {
        width: parent.width
        model: column.model
    }

    Rule {}

    MenuBarToday {
        width: parent.width
        model: column.model
    }

    Rule {
        visible: column.model.hasActiveTask
    }

    ActiveTaskRow {
        width: parent.width
        visible: column.model.hasActiveTask
        title: column.model.activeTaskTitle
        caption: column.model.activeTaskCaption
        credits: column.model.activeTaskCredits
    }

    Rule {}

    MenuBarFooterRow {
        width: parent.width
        model: column.model
    }
}
