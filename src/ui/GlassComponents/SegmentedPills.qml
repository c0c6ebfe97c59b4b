pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// A choice of one among many. It shows `selection` and asks for the change; whoever holds the value makes it. The
/// arrow keys go from pill to pill, Tab leaves the row.
Rectangle {
    id: pills

    /// Each has a `value` and a `label`.
    required property var options
    required property var selection
    property bool accentSelection: false
    property string spokenLabel: ""
    property string spokenDetail: ""

    readonly property int selectedIndex: options.findIndex(option => option.value === selection)

    signal chosen(var value)

    function choose(index: int) {
        if (index >= 0 && index < options.length) {
            repeater.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
            chosen(options[index].value);
        }
    }

    implicitWidth: row.implicitWidth + 6
    implicitHeight: row.implicitHeight + 6
    radius: 9
    color: Glass.sunk
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.Grouping
    Accessible.name: spokenLabel
    Accessible.description: spokenDetail

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 3

        Repeater {
            id: repeater
            model: pills.options
            delegate: SegmentedPill {
                required property var modelData
                required property int index

                label: modelData.label
                isSelected: index === pills.selectedIndex
                isAccented: pills.accentSelection
                activeFocusOnTab: activeFocus || (pills.enabled && index === Math.max(0, pills.selectedIndex))
                onActivated: pills.chosen(modelData.value)
                onMoved: by => pills.choose(index + by)
            }
        }
    }
}
