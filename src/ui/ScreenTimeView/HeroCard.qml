pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// Where the cycle stands, what can be done now, and the day's figures.
GlassSurface {
    id: card

    required property DashboardModel model
    readonly property var hero: model.hero

    implicitHeight: upper.height + 44 + 1 + stats.height + 40

    CountdownRing {
        id: ring
        x: card.LayoutMirroring.enabled ? card.width - width - 22 : 22
        y: 22 + (upper.height - height) / 2
        diameter: 126
        lineWidth: 8
        labelSize: 26
        remaining: card.hero.ringRemaining
        label: card.hero.ringLabel

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 34
            text: card.hero.ringCaption
            size: 10.5
            color: Glass.faint
        }
    }

    Item {
        id: upper
        anchors.left: parent.left
        anchors.leftMargin: 22 + ring.width + 26
        anchors.right: parent.right
        anchors.rightMargin: 22
        y: 22
        height: Math.max(ring.height, words.height)

        Column {
            id: words
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            spacing: 6

            Label {
                width: parent.width
                text: card.hero.headline
                size: 17
                weight: Font.DemiBold
                Accessible.role: Accessible.Heading
                wrapMode: Text.WordWrap
            }

            Label {
                width: Math.min(380, parent.width)
                text: card.hero.subhead
                size: 13
                color: Glass.slate
                lineHeight: 1.35
                wrapMode: Text.WordWrap
            }

            Item {
                width: 1
                height: 4
            }

            HeroButtons {
                width: parent.width
                model: card.model
            }
        }
    }

    Rectangle {
        y: upper.height + 44
        width: parent.width
        height: 1
        color: Glass.rule
    }

    HeroStats {
        id: stats
        x: 20
        y: upper.height + 45 + 20
        width: parent.width - 40
        stats: card.hero.stats
    }
}
