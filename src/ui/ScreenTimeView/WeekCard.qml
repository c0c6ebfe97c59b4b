pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The week as bars of screen time over the share of kept breaks.
GlassSurface {
    id: card

    required property DashboardModel model
    readonly property var week: model.week

    implicitHeight: legend.y + legend.height + 18

    Label {
        id: title
        anchors.left: parent.left
        anchors.leftMargin: 18
        y: 18
        text: card.week.title
        size: 14
        weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }

    Label {
        anchors.left: title.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.baseline: title.baseline
        horizontalAlignment: Text.AlignRight
        text: card.week.subtitle
        size: 12
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
        color: card.week.isHovering ? Glass.ink : Glass.slate

        Behavior on color {
            enabled: !Appearance.reducedMotion

            ColorAnimation {
                duration: 150
            }
        }
    }

    WeekChart {
        id: chart
        anchors.left: parent.left
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 18
        y: title.y + title.height + 14
        height: 190
        model: card.model
    }

    Row {
        id: legend
        anchors.left: parent.left
        anchors.leftMargin: 18
        y: chart.y + chart.height + 12
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 9
            height: 9
            radius: 2
            color: Glass.faded(Glass.accent, 0.45)
        }

        LegendText {
            text: card.week.screenTimeLegend
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 1
            color: Glass.faded(Glass.accent, 0.6)
        }

        LegendText {
            text: card.week.targetLegend
        }

        LegendText {
            text: card.week.keptLegend
        }
    }

    component LegendText: Label {
        width: implicitWidth + 12
        size: 11
        color: Glass.faint
    }
}
