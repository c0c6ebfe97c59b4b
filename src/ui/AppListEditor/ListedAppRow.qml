import QtQuick
import Kestrelfen

/// An application in the list, with what takes it out.
Item {
    id: row

    required property string bundleID
    required property string name
    required property string spokenAction
    property bool isLast: false
    readonly property alias remover: button

    signal removed

    implicitHeight: Math.max(shown.implicitHeight, button.height) + 16

    Label {
        id: shown
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.right: button.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: row.name
        size: 13
        elide: Text.ElideRight
    }

    SymbolButton {
        id: button
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        symbol: "minus.circle.fill"
        tint: Glass.slate
        spokenLabel: row.spokenAction
        onClicked: row.removed()
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        visible: !row.isLast
        color: Glass.rule
    }
}
