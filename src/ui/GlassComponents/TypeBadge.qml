import QtQuick
import Kestrelfen

/// A small coloured tag.
Rectangle {
    id: badge

    required property string text
    required property color tint

    implicitWidth: caption.implicitWidth + 14
    implicitHeight: caption.implicitHeight + 6
    radius: 5
    color: Glass.faded(tint, 0.14)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Label {
        id: caption
        anchors.centerIn: parent
        width: Math.min(implicitWidth, badge.width - 14)
        wrapMode: Text.Wrap
        text: badge.text
        size: 9.5
        weight: Font.DemiBold
        tracking: 0.8
        upperCased: true
        color: badge.tint
        Accessible.ignored: true
    }
}
