import QtQuick
import Kestrelfen

/// One cadence to choose.
SelectableCard {
    id: choice

    required property string key
    required property string headline
    required property string note
    required spokenDetail

    spacing: 4

    Label {
        width: parent.width
        text: choice.title
        size: 12.5
        weight: Font.Medium
        color: choice.isSelected ? Glass.overAccent : Glass.slate
        Accessible.ignored: true
    }

    Label {
        width: parent.width
        text: choice.headline
        size: 22
        weight: Font.DemiBold
        color: choice.isSelected ? Glass.overAccent : Glass.ink
        Accessible.ignored: true
    }

    Label {
        width: parent.width
        text: choice.note
        size: 9.5
        tracking: 1
        color: choice.isSelected ? Glass.faded(Glass.overProminent, Glass.highContrast ? 1 : 0.85) : Glass.faint
        wrapMode: Text.WordWrap
        Accessible.ignored: true
    }
}
