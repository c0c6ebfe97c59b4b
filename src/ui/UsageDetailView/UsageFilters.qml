pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The sheet's title, and what narrows its list.
Column {
    id: head

    required property UsageDetailModel model

    signal done

    spacing: 12

    Item {
        width: parent.width
        height: button.height

        Label {
            id: title
            anchors.left: parent.left
            text: head.model.title
            size: 16
            weight: Font.DemiBold
        }

        Label {
            anchors.left: parent.left
            anchors.top: title.bottom
            anchors.topMargin: 2
            text: head.model.summaryLine
            size: 12.5
            color: Glass.slate
        }

        PrimaryAction {
            id: button
            anchors.right: parent.right
            label: head.model.done
            onClicked: head.done()
        }
    }

    Item {
        width: parent.width
        height: sources.height

        SegmentedPills {
            id: sources
            anchors.left: parent.left
            options: head.model.sources
            selection: head.model.source
            accentSelection: true
            spokenLabel: head.model.title
            onChosen: value => head.model.chooseSource(value)
        }

        SegmentedPills {
            anchors.right: parent.right
            options: head.model.ranges
            selection: head.model.range
            accentSelection: true
            spokenLabel: head.model.title
            onChosen: value => head.model.chooseRange(value)
        }
    }

    Flow {
        width: parent.width
        spacing: 6
        visible: head.model.chips.length > 0

        Repeater {
            model: head.model.chips.length
            delegate: CategoryChip {
                required property int index

                chip: head.model.chips[index] ?? ({})
                onClicked: head.model.chooseCategory(chip.category)
            }
        }
    }
}
