import QtQuick
import Kestrelfen

/// Says that nothing is being kept.
Item {
    id: banner

    required property string text

    implicitHeight: Math.max(symbol.height, words.height)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Symbol {
        id: symbol
        name: "exclamationmark.triangle.fill"
        size: 13
        tint: Glass.amber
    }

    Label {
        id: words
        anchors.left: symbol.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.verticalCenter: symbol.verticalCenter
        text: banner.text
        size: 12.5
        color: Glass.amber
        wrapMode: Text.WordWrap
        Accessible.ignored: true
    }
}
