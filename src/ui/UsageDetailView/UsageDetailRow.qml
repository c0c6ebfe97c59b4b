import QtQuick
import Kestrelfen

/// One app or website of the sheet.
Item {
    id: usage

    required property int index
    required property var row
    required property int margin
    readonly property bool hasCategory: row.category !== ""

    signal menuAsked(Item anchor, var row)

    implicitHeight: bar.y + bar.height + 12
    Accessible.role: Accessible.ListItem
    Accessible.name: [row.name, row.detail, row.time, row.share].filter(each => each !== "").join(", ")

    Rectangle {
        visible: usage.index > 0
        x: usage.margin
        width: parent.width - 2 * usage.margin
        height: 1
        color: Glass.rule
    }

    Label {
        id: name
        anchors.left: parent.left
        anchors.leftMargin: usage.margin
        y: 10
        width: Math.min(implicitWidth, parent.width - 2 * usage.margin - 300)
        text: usage.row.name
        size: 13
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Label {
        anchors.left: name.right
        anchors.leftMargin: 8
        anchors.baseline: name.baseline
        text: usage.row.detail
        size: 9
        color: Glass.faint
        Accessible.ignored: true
    }

    MenuLabel {
        id: category
        visible: usage.hasCategory
        anchors.right: time.left
        anchors.rightMargin: 10
        anchors.verticalCenter: name.verticalCenter
        text: usage.row.categoryLabel
        spokenDetail: SpokenWords.category
        symbol: usage.row.categorySymbol
        color: Glass.slate
        onClicked: usage.menuAsked(category, usage.row)
    }

    Label {
        id: time
        anchors.right: share.left
        anchors.baseline: name.baseline
        width: 70
        horizontalAlignment: Text.AlignRight
        text: usage.row.time
        size: 12.5
        Accessible.ignored: true
    }

    Label {
        id: share
        anchors.right: parent.right
        anchors.rightMargin: usage.margin
        anchors.baseline: name.baseline
        width: 40
        horizontalAlignment: Text.AlignRight
        text: usage.row.share
        size: 11.5
        color: Glass.faint
        Accessible.ignored: true
    }

    TrackBar {
        id: bar
        x: usage.margin
        y: name.y + name.height + 8
        width: parent.width - 2 * usage.margin
        fraction: usage.row.fraction
    }
}
