import QtQuick
import Kestrelfen

/// One line of text to be written, without a frame of its own. Return accepts, Escape cancels.
FocusScope {
    id: field

    property alias text: input.text
    property alias maximumLength: input.maximumLength
    property string placeholder: ""
    property string spokenLabel: placeholder
    property real textSize: 13.5
    property color color: Glass.ink
    readonly property alias input: input
    readonly property int enlargement: Appearance.enlargement(textSize, Screen.devicePixelRatio)

    signal accepted
    signal cancelled
    signal edited

    function selectAll() {
        input.selectAll();
    }

    implicitWidth: 200
    implicitHeight: Math.ceil(input.implicitHeight / enlargement)

    TextInput {
        id: input
        focus: true
        activeFocusOnTab: true
        width: field.width * field.enlargement
        height: field.height * field.enlargement
        scale: 1 / field.enlargement
        transformOrigin: Item.TopLeft
        horizontalAlignment: TextInput.AlignLeft
        verticalAlignment: TextInput.AlignVCenter
        clip: true
        selectByMouse: true
        color: field.color
        selectionColor: Glass.prominent
        selectedTextColor: Glass.overProminent
        font.family: Appearance.sans
        font.pixelSize: Math.round(field.textSize * field.enlargement)
        font.letterSpacing: Appearance.tightening(field.textSize, field.enlargement, false)
        Accessible.role: Accessible.EditableText
        Accessible.name: field.spokenLabel
        onAccepted: field.accepted()
        onTextEdited: field.edited()
        Keys.onEscapePressed: field.cancelled()
    }

    Label {
        width: parent.width
        height: parent.height
        visible: input.text === "" && input.preeditText === ""
        text: field.placeholder
        size: field.textSize
        color: Glass.faint
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
