pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The sheet of all apps or websites of a range of days.
Item {
    id: view

    required property UsageDetailModel model
    readonly property int margin: 24

    signal done

    UsageFilters {
        id: head
        x: view.margin
        y: 20
        width: parent.width - 2 * view.margin
        model: view.model
        onDone: view.done()
    }

    Rectangle {
        id: upperRule
        y: head.y + head.height + 12
        width: parent.width
        height: 1
        color: Glass.rule
    }

    Label {
        anchors.centerIn: list
        width: list.width
        visible: view.model.placeholder !== ""
        horizontalAlignment: Text.AlignHCenter
        text: view.model.placeholder
        size: 12.5
        color: Glass.faint
        wrapMode: Text.WordWrap
    }

    GlassList {
        id: list
        anchors.top: upperRule.bottom
        anchors.bottom: lowerRule.top
        width: parent.width
        visible: view.model.placeholder === ""
        model: view.model.rows
        spokenLabel: view.model.summaryLine
        delegate: UsageDetailRow {
            width: list.width
            margin: view.margin
            onMenuAsked: (anchor, row) => {
                menu.row = row;
                menu.open(anchor);
            }
        }
    }

    Rectangle {
        id: lowerRule
        anchors.bottom: notes.top
        anchors.bottomMargin: 12
        width: parent.width
        height: 1
        color: Glass.rule
    }

    Item {
        id: notes
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        x: view.margin
        width: parent.width - 2 * view.margin
        height: Math.max(first.implicitHeight, second.implicitHeight)

        NoteLabel {
            id: first
            anchors.left: parent.left
            text: view.model.firstNote
        }

        NoteLabel {
            id: second
            anchors.right: parent.right
            horizontalAlignment: Text.AlignRight
            text: view.model.secondNote
        }
    }

    PopupMenu {
        id: menu

        property var row: ({})

        spokenLabel: row.categoryLabel ?? ""
        entries: row.id ? view.model.categoryEntries(row) : []
        onChosen: value => view.model.assign(row.id, value)
    }

    component NoteLabel: Label {
        width: parent.width / 2 - 12
        size: 11
        color: Glass.faint
        wrapMode: Text.WordWrap
    }
}
