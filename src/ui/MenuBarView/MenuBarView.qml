pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The popover: where the cycle stands, and what can be done now.
HudCard {
    id: view

    required property MenuBarModel model

    signal dismissed

    radius: 14
    focus: true
    Keys.onEscapePressed: view.dismissed()

    Accessible.role: Accessible.Dialog
    Accessible.name: "Kestrelfen"

    Column {
        id: column
        width: 352
        topPadding: 22
        spacing: 18

        Row {
            x: 20
            spacing: 18

            CountdownRing {
                anchors.verticalCenter: parent.verticalCenter
                remaining: view.model.ringRemaining
                label: view.model.ringLabel
                diameter: 88
                lineWidth: 6
                labelSize: 19
            }

            MenuBarHeader {
                width: 206
                model: view.model
            }
        }

        Row {
            x: 20
            spacing: 8

            Repeater {
                model: view.model.controls
                delegate: GlassButton {
                    id: button

                    required property int key
                    required property string text
                    required property bool offered
                    required spokenLabel
                    readonly property bool isProminent: key === view.model.prominentKey

                    width: 98.66
                    radius: 11
                    label: text
                    enabled: offered
                    textSize: 12
                    textWeight: isProminent ? Font.DemiBold : Font.Normal
                    textColor: isProminent ? Glass.overAccent : Glass.ink
                    fill: isProminent ? Glass.accentFill : Glass.glass2
                    pressedFill: isProminent ? Glass.faded(Glass.accentFill, 0.85) : Glass.glass
                    line: isProminent ? "transparent" : Glass.hudBorder
                    onClicked: view.model.press(button.key)
                }
            }
        }

        Column {
            width: parent.width

            Rectangle {
                width: parent.width
                height: 1
                color: Glass.rule
            }

            Item {
                width: parent.width
                height: 42

                GlassButton {
                    anchors.right: parent.right
                    anchors.rightMargin: 12
                    anchors.verticalCenter: parent.verticalCenter
                    label: "Quit"
                    spokenLabel: "Quit Kestrelfen"
                    textSize: 12
                    textColor: Glass.slate
                    fill: "transparent"
                    pressedFill: Glass.sunk
                    line: "transparent"
                    radius: 8
                    horizontalPadding: 8
                    verticalPadding: 5
                    onClicked: view.model.quit()
                }
            }
        }
    }
}
