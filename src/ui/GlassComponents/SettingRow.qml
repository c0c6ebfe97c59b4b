import QtQuick
import Kestrelfen

/// One labelled row of a group, with its control at the trailing end. Controls of unequal height centre themselves in
/// the row: `anchors.verticalCenter: parent.verticalCenter`.
Item {
    id: row

    required property string title
    property string caption: ""
    property color captionTint: Glass.faint
    default property alias trailing: slot.data

    width: parent ? parent.width : implicitWidth
    implicitWidth: texts.implicitWidth + slot.width + 48
    implicitHeight: Math.max(texts.implicitHeight, slot.height) + 26

    Column {
        id: texts
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: slot.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            width: parent.width
            text: row.title
            size: 13.5
            wrapMode: Text.WordWrap
        }

        Label {
            width: parent.width
            visible: row.caption !== ""
            text: row.caption
            size: 11.5
            color: row.captionTint
            wrapMode: Text.WordWrap
        }
    }

    Row {
        id: slot
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14
    }
}
