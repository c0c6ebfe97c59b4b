import QtQuick

/// The clicks and the keys of a control, which forwards its keys here. Return acts when pressed and Space when let go;
/// a key that was down before the control had the focus does nothing.
MouseArea {
    id: area

    required property Item control
    /// Whether a click brings the keyboard here, as where one of several becomes the only stop.
    property bool takesKeyboard: false
    property bool isKeyHeld: false
    readonly property bool isDown: containsPress || isKeyHeld
    readonly property bool hasKeyboard: control.activeFocus

    signal activated

    /// Qt lets a press through that comes by way of accessibility, even while disabled.
    function act() {
        if (control.enabled) {
            activated();
        }
    }

    onHasKeyboardChanged: isKeyHeld = false
    onClicked: {
        if (takesKeyboard) {
            control.forceActiveFocus(Qt.MouseFocusReason);
        }
        area.activated();
    }

    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier) || !(isReturn || event.key === Qt.Key_Space)) {
            return;
        }
        event.accepted = true;
        if (isReturn && !event.isAutoRepeat) {
            area.activated();
        } else if (!event.isAutoRepeat) {
            isKeyHeld = true;
        }
    }

    Keys.onReleased: event => {
        if (event.key === Qt.Key_Space && !event.isAutoRepeat && isKeyHeld) {
            event.accepted = true;
            isKeyHeld = false;
            area.activated();
        }
    }
}
