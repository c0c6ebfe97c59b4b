import QtQuick
import Kestrelfen

/// How much is done, and what the list is not.
Item {
    id: footer

    required property TasksModel model
    readonly property var texts: model.texts

    implicitHeight: done.height

    Label {
        id: done
        anchors.left: parent.left
        text: footer.model.doneText
        size: 11
        color: Glass.faint
    }

    PlainLink {
        anchors.left: done.right
        anchors.leftMargin: 12
        anchors.verticalCenter: done.verticalCenter
        visible: footer.model.canClearCompleted
        label: footer.texts.clear
        textSize: 11
        onClicked: footer.model.askClearing()
    }

    Label {
        anchors.right: parent.right
        text: footer.texts.purpose
        size: 11
        color: Glass.faint
    }
}
