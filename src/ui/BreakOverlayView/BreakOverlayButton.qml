import QtQuick
import Kestrelfen

/// One way out of the break; one that must still be waited for is drawn without a fill and takes no clicks.
GlassButton {
    id: button

    required property int key
    required property string text
    required property bool offered
    required spokenLabel

    signal chosen(int key)

    label: text
    enabled: offered
    Accessible.role: offered ? Accessible.Button : Accessible.StaticText
    opacity: 1
    textColor: offered ? Glass.ink : Glass.faint
    fill: offered ? Glass.glass2 : "transparent"
    line: offered ? Glass.hairline : Glass.faded(Glass.hairline, 0.5)
    onClicked: button.chosen(button.key)
}
