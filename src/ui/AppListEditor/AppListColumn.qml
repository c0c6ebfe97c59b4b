pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The applications that are in the list, and those that could be. Whoever moves them by the keyboard finds it at what
/// comes next.
Column {
    id: column

    required property AppListModel editor
    readonly property var texts: editor ? editor.texts : {}

    /// Nothing is left here that could have it.
    signal keyboardLost

    function passKeyboard(rows: Repeater, index: int): void {
        const next = rows.itemAt(Math.min(index, rows.count - 1));
        const stop = (next as ListedAppRow)?.remover ?? next;
        if (stop) {
            stop.forceActiveFocus(Qt.TabFocusReason);
        } else {
            column.keyboardLost();
        }
    }

    Repeater {
        id: listed
        model: column.editor ? column.editor.ids : null
        delegate: ListedAppRow {
            required property int index

            width: column.width
            isLast: index === listed.count - 1
            onRemoved: {
                const place = index;
                const hadKeyboard = remover.activeFocus;
                column.editor.remove(bundleID);
                if (hadKeyboard) {
                    column.passKeyboard(listed, place);
                }
            }
        }
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 8
        visible: listed.count === 0
        text: column.texts.empty ?? ""
        size: 12.5
        color: Glass.faint
    }

    Item {
        width: 1
        height: 18
    }

    Eyebrow {
        anchors.left: parent.left
        anchors.leftMargin: 8
        text: column.texts.addHeading ?? ""
    }

    Item {
        width: 1
        height: 6
    }

    Repeater {
        id: running
        model: column.editor ? column.editor.runningChoices : null
        delegate: RunningAppRow {
            required property int index

            width: column.width
            onAdded: {
                const place = index;
                const hadKeyboard = activeFocus;
                column.editor.add(bundleID);
                if (hadKeyboard) {
                    column.passKeyboard(running, place);
                }
            }
        }
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 8
        visible: running.count === 0
        text: column.texts.nothingToAdd ?? ""
        size: 12.5
        color: Glass.faint
    }
}
