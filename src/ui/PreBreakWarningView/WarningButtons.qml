import QtQuick
import Kestrelfen

/// The card's row of buttons: the first and the last share what the snoozes between them leave.
Row {
    id: row

    required property ControlListModel controls
    required property int dismissKey
    required property int startKey

    readonly property int snoozeCount: repeater.count - 2
    readonly property int snoozeWidth: 35
    readonly property int snoozesWidth: snoozeCount > 0 ? snoozeCount * snoozeWidth + snoozeCount * spacing : 0
    readonly property real wideWidth: (width - snoozesWidth - spacing) / 2

    signal chosen(int key)

    spacing: 8

    Repeater {
        id: repeater
        model: row.controls
        delegate: GlassButton {
            id: button

            required property int key
            required property string text
            required spokenLabel
            readonly property bool isStart: key === row.startKey
            readonly property bool isWide: isStart || key === row.dismissKey

            width: isWide ? row.wideWidth : row.snoozeWidth
            height: 33
            radius: 11
            label: text
            textSize: 12
            textWeight: isStart || !isWide ? Font.DemiBold : Font.Medium
            textFamily: isWide ? "" : Appearance.monospaced
            textColor: isStart ? Glass.overAccent : Glass.ink
            fill: isStart ? Glass.accentFill : Glass.sunk
            pressedFill: isStart ? Glass.faded(Glass.accentFill, 0.85) : Glass.rule
            line: isStart ? "transparent" : Glass.hudBorder
            onClicked: row.chosen(button.key)
        }
    }
}
