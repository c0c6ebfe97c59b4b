pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The card's row of buttons: the first and the last share what the snoozes between them leave.
Item {
    id: row

    required property ControlListModel controls
    required property int dismissKey
    required property int startKey

    readonly property int snoozeCount: repeater.count - 2
    readonly property int snoozeWidth: 35
    readonly property int gap: 8
    readonly property int snoozeGap: 4
    readonly property int snoozesWidth: snoozeCount > 0 ? snoozeCount * (snoozeWidth + snoozeGap) - snoozeGap + gap : 0
    readonly property real wideWidth: (width - snoozesWidth - gap) / 2

    property GlassButton hovered: null

    signal chosen(int key)

    implicitHeight: 33

    Repeater {
        id: repeater
        model: row.controls
        delegate: GlassButton {
            id: button

            required property int key
            required property string text
            required property int index
            required spokenLabel
            readonly property bool isStart: key === row.startKey
            readonly property bool isWide: isStart || key === row.dismissKey

            x: isStart ? row.width - width : isWide ? 0 : row.wideWidth + row.gap + (index - 1) * (row.snoozeWidth + row.snoozeGap)
            width: isWide ? row.wideWidth : row.snoozeWidth
            height: 33
            radius: 11
            label: text
            textSize: 12.5
            textWeight: isStart || !isWide ? Font.DemiBold : Font.Medium
            textFamily: isWide ? Appearance.sans : Appearance.monospaced
            textColor: isStart ? Glass.overAccent : Glass.ink
            fill: isStart ? Glass.accentFill : Glass.sunk
            pressedFill: isStart ? Glass.faded(Glass.accentFill, 0.85) : Glass.rule
            line: isStart ? "transparent" : Glass.hudBorder
            onClicked: row.chosen(button.key)
            onIsHoveredChanged: {
                if (isHovered && !isWide) {
                    row.hovered = button;
                } else if (row.hovered === button) {
                    row.hovered = null;
                }
            }
        }
    }

    HoverTip {
        target: row.hovered
        text: row.hovered ? row.hovered.spokenLabel : ""
    }
}
