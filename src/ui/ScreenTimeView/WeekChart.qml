pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The plot: lines with their numbers, the target, and a bar for each day.
Item {
    id: chart

    required property DashboardModel model
    readonly property var week: model.week
    readonly property int axisWidth: 32
    readonly property int plotHeight: height - week.labelsHeight - week.headroom

    /// From the top of the chart to that share of the plot.
    function down(share: real): real {
        return week.headroom + Math.round(plotHeight * (1 - share));
    }

    Accessible.role: Accessible.Chart
    Accessible.name: week.title
    Accessible.description: week.subtitle

    Repeater {
        model: chart.week.gridlines.length
        delegate: Item {
            id: gridline

            required property int index
            readonly property var line: chart.week.gridlines[index]

            y: chart.down(line.height)
            width: chart.width

            Label {
                anchors.left: parent.left
                anchors.verticalCenter: parent.top
                width: chart.axisWidth
                horizontalAlignment: Text.AlignRight
                text: gridline.line.label
                size: 10.5
                color: Glass.faint
            }

            Rectangle {
                anchors.left: parent.left
                anchors.leftMargin: chart.axisWidth + 10
                anchors.right: parent.right
                height: 1
                color: Glass.rule
            }
        }
    }

    Row {
        id: bars
        anchors.left: parent.left
        anchors.leftMargin: chart.axisWidth + 10
        anchors.right: parent.right
        height: parent.height
        spacing: 10

        readonly property int count: chart.week.bars.length
        readonly property real columnWidth: (width - (count - 1) * spacing) / count

        Repeater {
            model: bars.count
            delegate: WeekBar {
                required property int index

                width: bars.columnWidth
                height: chart.height
                bar: chart.week.bars[index]
                foot: chart.down(0)
                barHeight: chart.model.barPoints(bar.height, chart.plotHeight)
                onEntered: chart.model.hover(index)
                onExited: chart.model.leave(index)
            }
        }
    }

    Item {
        visible: chart.week.targetLine >= 0
        anchors.left: bars.left
        anchors.right: parent.right
        y: chart.down(chart.week.targetLine)

        Rectangle {
            width: parent.width
            height: 1
            color: Glass.faded(Glass.accent, 0.55)
        }

        Label {
            anchors.right: parent.right
            anchors.bottom: parent.top
            anchors.bottomMargin: 2
            text: chart.week.targetMark
            size: 9.5
            color: Glass.accent
        }
    }
}
