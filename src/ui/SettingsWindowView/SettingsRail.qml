pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The column of panes.
Rectangle {
    id: rail

    required property SettingsModel model

    color: Glass.glass2
    Accessible.role: Accessible.PageTabList
    Accessible.name: model.heading

    Eyebrow {
        anchors.left: parent.left
        anchors.leftMargin: 18
        y: 50
        text: rail.model.heading
    }

    Column {
        x: 10
        y: 50 + 12 + 8
        width: parent.width - 20
        spacing: 2

        Repeater {
            id: rows
            model: rail.model.panes
            delegate: RailRow {
                required property int index
                required property string modelData

                label: modelData
                isSelected: index === rail.model.selectedPane
                onChosen: rail.model.selectPane(index)
                onMoved: by => {
                    const next = index + by;
                    if (next >= 0 && next < rows.count) {
                        rail.model.selectPane(next);
                        rows.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
                    }
                }
            }
        }
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 14
        text: rail.model.footer
        size: 9.5
        color: Glass.faint
    }
}
