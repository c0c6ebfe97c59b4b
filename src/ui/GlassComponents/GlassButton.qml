import QtQuick
import Kestrelfen

/// A button: a label on a rounded fill. The looks are the caller's; the click, the keyboard name and the hit area are
/// here.
Rectangle {
    id: button

    required property string label
    property string spokenLabel: label
    property color textColor: Glass.ink
    property color fill: Glass.glass2
    property color pressedFill: Glass.glass
    property color line: Glass.hairline
    property int textSize: 13
    property int textWeight: Font.Normal
    property string textFamily: Appearance.sans
    property int horizontalPadding: 16
    property int verticalPadding: 10

    signal clicked

    implicitWidth: caption.implicitWidth + 2 * horizontalPadding
    implicitHeight: caption.implicitHeight + 2 * verticalPadding
    radius: 12
    color: area.pressed ? pressedFill : fill
    border.width: 1
    border.color: line
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.Button
    Accessible.name: spokenLabel
    Accessible.onPressAction: button.clicked()

    Text {
        id: caption
        anchors.centerIn: parent
        text: button.label
        color: button.textColor
        font.pixelSize: button.textSize
        font.weight: button.textWeight
        font.family: button.textFamily
        Accessible.ignored: true
    }

    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
