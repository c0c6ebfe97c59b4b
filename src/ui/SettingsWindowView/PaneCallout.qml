import QtQuick
import Kestrelfen

/// What the person should know: as a warning, or beside a raised hand.
Rectangle {
    id: callout

    required property string title
    required property string words
    required property bool isWarning
    readonly property real indent: isWarning ? 16 : 52

    implicitHeight: texts.implicitHeight + 26
    radius: 12
    color: isWarning ? Glass.faded(Glass.amber, 0.12) : "transparent"
    border.width: 1
    border.color: isWarning ? Glass.over(Glass.faded(Glass.amber, 0.35), color) : Glass.hairline

    Symbol {
        anchors.left: parent.left
        anchors.leftMargin: 18
        y: 14
        visible: !callout.isWarning
        name: "hand.raised.fill"
        size: 15
        tint: Glass.accent
    }

    Column {
        id: texts
        anchors.left: parent.left
        anchors.leftMargin: callout.indent
        y: 13
        width: parent.width - callout.indent - 16
        spacing: 3

        Label {
            width: parent.width
            text: callout.title
            size: 13
            weight: Font.DemiBold
            color: callout.isWarning ? Glass.amber : Glass.ink
        }

        Label {
            width: parent.width
            text: callout.words
            size: 12.5
            color: Glass.slate
            lineHeight: 1.35
            wrapMode: Text.WordWrap
        }
    }
}
