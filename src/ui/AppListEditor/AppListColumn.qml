pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The applications that are in the list, and those that could be.
Column {
    id: column

    required property AppListModel editor

    Repeater {
        id: listed
        model: column.editor ? column.editor.ids : null
        delegate: ListedAppRow {
            required property int index

            width: column.width
            isLast: index === listed.count - 1
            onRemoved: column.editor.remove(bundleID)
        }
    }

    Label {
        visible: listed.count === 0
        text: "No apps yet."
        size: 12.5
        color: Glass.faint
    }

    Item {
        width: 1
        height: 18
    }

    Eyebrow {
        x: 8
        text: "Add a running app"
    }

    Item {
        width: 1
        height: 6
    }

    Repeater {
        id: running
        model: column.editor ? column.editor.runningChoices : null
        delegate: RunningAppRow {
            width: column.width
            onAdded: column.editor.add(bundleID)
        }
    }

    Label {
        x: 8
        visible: running.count === 0
        text: "Everything running is already listed."
        size: 12.5
        color: Glass.faint
    }
}
