import QtQuick
import Kestrelfen

/// One task. A click chooses it; the menu opens with the other button, the menu key or Shift and F10.
Rectangle {
    id: task

    required property int index
    required property var row
    required property TasksModel model
    readonly property var texts: model.texts
    readonly property alias title: content.title
    readonly property string spokenLabel: [row.title, row.hasActiveBadge ? texts.badge : "", row.credits].filter(each => each !== "").join(", ")

    signal menuAsked(Item anchor, var row)

    function choose() {
        if (row.canBeChosen) {
            model.activate(row.id);
        }
    }

    implicitHeight: Math.max(17, title.height) + 26
    color: row.isActive ? Glass.faded(Glass.accent, 0.08) : "transparent"

    activeFocusOnTab: true
    Keys.forwardTo: [area]
    Keys.onMenuPressed: task.menuAsked(task.title, task.row)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier) {
            task.menuAsked(task.title, task.row);
            event.accepted = true;
        } else if (event.key === Qt.Key_Delete) {
            model.askDeletion(row.id);
            event.accepted = true;
        }
    }
    Accessible.role: Accessible.ListItem
    Accessible.name: spokenLabel
    Accessible.focusable: true
    Accessible.selectable: row.canBeChosen
    Accessible.selected: row.isActive
    Accessible.onPressAction: task.choose()

    Rectangle {
        visible: task.index > 0
        width: parent.width
        height: 1
        color: Glass.rule
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: task
        onActivated: task.choose()
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: task.menuAsked(task.title, task.row)
    }

    TaskRowContent {
        id: content
        anchors.fill: parent
        opacity: Glass.highContrast ? 1 : task.row.opacity
        row: task.row
        texts: task.texts
        onToggled: task.model.toggle(task.row.id)
    }

    FocusRing {
        target: task
        around: 8
        gap: -4
    }
}
