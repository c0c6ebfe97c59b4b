import QtQuick
import Kestrelfen

/// What a task's row shows.
Item {
    id: content

    required property var row
    required property var texts
    readonly property alias title: title

    signal toggled

    Symbol {
        id: grip
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        name: "grip"
        size: 11
        tint: Glass.faint

        HoverHandler {
            id: gripHover
        }

        RestingTip {
            hovered: gripHover.hovered
            // Within the row: what lies beyond the last one is cut off.
            anchors.right: undefined
            anchors.left: parent.right
            anchors.leftMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            text: content.texts.grip
        }
    }

    TaskCheckbox {
        id: checkbox
        anchors.left: grip.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        isChecked: content.row.isCompleted
        isAccented: content.row.isActive
        spokenLabel: content.row.completedItem + ": " + content.row.title
        onClicked: content.toggled()
    }

    Label {
        id: title
        anchors.left: checkbox.right
        anchors.leftMargin: 12
        anchors.right: badge.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: content.row.title
        size: 13.5
        struckOut: content.row.isCompleted
        color: content.row.isCompleted ? Glass.slate : Glass.ink
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    TypeBadge {
        id: badge
        anchors.right: credits.left
        anchors.rightMargin: credits.text === "" ? 0 : 12
        anchors.verticalCenter: parent.verticalCenter
        visible: content.row.hasActiveBadge
        width: visible ? implicitWidth : 0
        text: content.texts.badge
        tint: Glass.accent
        Accessible.ignored: true
    }

    Label {
        id: credits
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: content.row.credits
        size: 11
        color: Glass.faint
        Accessible.ignored: true
    }
}
