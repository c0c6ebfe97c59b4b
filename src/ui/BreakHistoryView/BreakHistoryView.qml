pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// Every break and pause of a range of days as a table.
Item {
    id: view

    required property HistoryModel model
    readonly property var columns: model.columns
    readonly property var columnWidths: columns.map(each => each.width || flexibleWidth)
    readonly property real flexibleWidth: table.width - 36 - 4 * 12 - columns.reduce((sum, each) => sum + each.width, 0)

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

    Item {
        id: controls
        x: 24
        y: 22
        width: parent.width - 48
        height: pills.height

        SegmentedPills {
            id: pills
            anchors.left: parent.left
            options: view.model.ranges
            selection: view.model.range
            accentSelection: true
            spokenLabel: SpokenWords.range
            onChosen: value => view.model.chooseRange(value)
        }

        Label {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: view.model.summary
            size: 10.5
            color: Glass.faint
        }
    }

    GlassSurface {
        id: table

        readonly property real room: view.height - y - 16 - footnote.height - 26
        readonly property real needed: header.height + 1 + (empty.visible ? empty.height : list.contentHeight)

        x: 24
        y: controls.y + controls.height + 16
        width: parent.width - 48
        height: Math.min(room, needed)
        clip: true

        HistoryHeader {
            id: header
            width: parent.width
            columns: view.columns
            columnWidths: view.columnWidths
        }

        Rectangle {
            y: header.height
            width: parent.width
            height: 1
            color: Glass.rule
        }

        Label {
            id: empty
            x: 18
            y: header.height + 1
            height: implicitHeight + 24
            visible: view.model.emptyLine !== ""
            text: view.model.emptyLine
            size: 12.5
            color: Glass.faint
        }

        GlassList {
            id: list
            y: header.height + 1
            width: parent.width
            height: table.room - y
            visible: !empty.visible
            model: view.model
            spokenLabel: view.model.summary
            delegate: HistoryRow {
                width: list.width
                columnWidths: view.columnWidths
            }
        }
    }

    Label {
        id: footnote
        x: 24
        y: table.y + table.height + 16
        text: view.model.footnote
        size: 10
        color: Glass.faint
    }
}
