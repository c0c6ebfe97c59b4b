import QtQuick
import Kestrelfen

/// Where a new task is written.
GlassSurface {
    id: composer

    required property TasksModel model
    readonly property var texts: model.texts

    radius: 14
    implicitHeight: Math.max(17, field.implicitHeight) + 22

    Outline {
        id: circle
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 17
        height: 17
        radius: 8.5
        lineWidth: 1.5
        tint: Glass.faint
    }

    TextInputField {
        id: field
        anchors.left: circle.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        placeholder: composer.texts.prompt
        text: composer.model.newTitle
        onEdited: composer.model.newTitle = text
        onAccepted: composer.model.add()
        onCancelled: {
            composer.model.cancelComposing();
            focus = false;
        }
    }

    Connections {
        target: composer.model

        function onContentChanged() {
            if (field.text !== composer.model.newTitle) {
                field.text = composer.model.newTitle;
            }
        }
    }
}
