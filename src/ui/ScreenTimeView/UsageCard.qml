pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// What the day's time went to.
GlassSurface {
    id: card

    required property DashboardModel model
    readonly property var usage: model.usage
    readonly property var sources: model.usageSources

    implicitHeight: 18 + header.height + 14 + body.height + 13 + footnote.implicitHeight + 18

    Item {
        id: header
        x: 18
        y: 18
        width: parent.width - 36
        height: source.height

        MenuLabel {
            id: source
            anchors.left: parent.left
            text: card.usage.title
            size: 13
            weight: Font.DemiBold
            onClicked: menu.open(source)
        }

        PlainLink {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            label: card.usage.seeAll
            textSize: 11.5
            onClicked: card.model.seeAll()
        }
    }

    Column {
        id: body
        x: 18
        y: 18 + header.height + 14
        width: parent.width - 36
        spacing: 11

        Repeater {
            model: card.model.usageRows
            delegate: UsageRow {
                width: parent?.width ?? 0
            }
        }

        Label {
            width: parent.width
            visible: card.usage.emptyNote !== ""
            text: card.usage.emptyNote
            size: 12.5
            color: Glass.slate
            lineHeight: 1.35
            wrapMode: Text.WordWrap
        }
    }

    Label {
        id: footnote
        x: 18
        width: parent.width - 36
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 18
        text: card.usage.footnote
        size: 11
        color: Glass.faint
        lineHeight: 1.35
        wrapMode: Text.WordWrap
    }

    PopupMenu {
        id: menu
        spokenLabel: card.usage.title
        entries: card.sources.map(each => ({
                    label: each.label,
                    value: each.value,
                    checked: each.value === card.usage.source
                }))
        onChosen: value => card.model.chooseUsageSource(value)
    }
}
