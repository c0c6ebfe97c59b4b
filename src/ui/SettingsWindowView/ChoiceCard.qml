import QtQuick
import Kestrelfen

/// One value of a preference to choose.
SelectableCard {
    id: choice

    required property string key
    required property string value
    required property string caption
    required property string eyebrow
    required property bool isOn

    isSelected: isOn
    spokenDetail: caption
    spacing: 2

    Eyebrow {
        anchors.left: parent.left
        visible: text !== ""
        text: choice.eyebrow
        Accessible.ignored: true
    }

    Label {
        width: parent.width
        text: choice.title
        size: 14
        weight: Font.DemiBold
        color: choice.isFilled ? Glass.overAccent : Glass.ink
        Accessible.ignored: true
    }

    Label {
        width: parent.width
        text: choice.caption
        size: 11.5
        color: choice.isFilled ? Glass.overAccent : Glass.slate
        wrapMode: Text.WordWrap
        Accessible.ignored: true
    }
}
