pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The sheet's title, and what narrows its list.
Column {
    id: head

    required property UsageDetailModel model

    signal done

    function goTo(chip: CategoryChip): void {
        if (chip) {
            chip.forceActiveFocus(Qt.TabFocusReason);
            chip.clicked();
        }
    }

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
            Accessible.role: Accessible.Heading
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
            spokenLabel: SpokenWords.source
            onChosen: value => head.model.chooseSource(value)
        }

        SegmentedPills {
            anchors.right: parent.right
            options: head.model.ranges
            selection: head.model.range
            accentSelection: true
            spokenLabel: SpokenWords.range
            onChosen: value => head.model.chooseRange(value)
        }
    }

    Flow {
        width: parent.width
        spacing: 6
        visible: head.model.chips.length > 0
        Accessible.role: Accessible.Grouping
        Accessible.name: SpokenWords.category

        Repeater {
            id: chips
            model: head.model.chips.length
            delegate: CategoryChip {
                required property int index

                chip: head.model.chips[index] ?? ({})
                onClicked: head.model.chooseCategory(chip.category)
                onMoved: by => head.goTo(chips.itemAt(index + by) as CategoryChip)
            }
        }
    }
}
