import QtQuick
import Kestrelfen

/// One day of the week. The pointer and the keyboard both reach it.
Item {
    id: day

    required property var bar
    /// How far down the bar stands.
    required property real foot
    required property real barHeight
    readonly property string spokenLabel: bar.sentence

    signal entered
    signal exited

    activeFocusOnTab: true
    onActiveFocusChanged: activeFocus ? entered() : exited()
    Keys.onLeftPressed: nextItemInFocusChain(day.LayoutMirroring.enabled).forceActiveFocus(Qt.TabFocusReason)
    Keys.onRightPressed: nextItemInFocusChain(!day.LayoutMirroring.enabled).forceActiveFocus(Qt.TabFocusReason)
    Accessible.role: Accessible.StaticText
    Accessible.name: spokenLabel
    Accessible.focusable: true

    HoverHandler {
        onHoveredChanged: hovered ? day.entered() : day.exited()
    }

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        y: day.foot - day.barHeight
        width: Math.min(48, day.width)
        height: day.barHeight
        clip: true

        Rectangle {
            width: parent.width
            height: parent.height + radius
            radius: 6
            color: Glass.faded(Glass.accent, 0.45)
            opacity: day.bar.isHovered ? 1 : 0.75
        }
    }

    Label {
        id: kept
        anchors.horizontalCenter: parent.horizontalCenter
        y: day.foot + 5
        text: day.bar.kept
        size: 10.5
        color: Glass[day.bar.tint]
        Accessible.ignored: true
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: kept.bottom
        anchors.topMargin: 2
        text: day.bar.weekday
        size: 11
        color: day.bar.isToday ? Glass.ink : Glass.faint
        Accessible.ignored: true
    }

    FocusRing {
        target: day
        around: 6
        gap: 0
    }
}
