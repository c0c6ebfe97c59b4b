import QtQuick
import Kestrelfen

/// What covers the window while something in it must be answered first: it dims, keeps the pointer and the keyboard to
/// itself and gives the keyboard back afterwards. Escape and a click beside the content dismiss it.
ModalLayer {
    id: veil

    property color shade: Glass.shade
    property bool dismissesOnClick: true

    signal dismissed

    Keys.onEscapePressed: veil.dismissed()

    Rectangle {
        anchors.fill: parent
        color: veil.shade
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
        onPressed: {
            if (veil.dismissesOnClick) {
                veil.dismissed();
            }
        }
    }
}
