import QtQuick
import Kestrelfen

/// A name and, at the other end, its number.
Item {
    id: row

    required property string title
    required property string value
    property color color: Glass.ink
    property int valueWeight: Font.DemiBold

    implicitHeight: name.implicitHeight

    Label {
        id: name
        anchors.left: parent.left
        anchors.right: number.left
        anchors.rightMargin: 6
        text: row.title
        size: 12.5
        color: row.color
        elide: Text.ElideRight
    }

    Label {
        id: number
        anchors.right: parent.right
        text: row.value
        size: 12.5
        weight: row.valueWeight
        color: row.color
    }
}
