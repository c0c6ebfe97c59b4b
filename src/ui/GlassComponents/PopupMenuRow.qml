import QtQuick
import Kestrelfen

/// One entry of a menu, or a line between entries.
Rectangle {
    id: row

    required property var modelData
    readonly property var entry: modelData
    readonly property bool isSeparator: entry.separator === true
    readonly property bool isSelectable: !isSeparator && entry.enabled !== false
    readonly property string spokenLabel: entry.label ?? ""
    readonly property bool isChosen: activeFocus || area.isDown
    readonly property bool hasSymbol: (entry.symbol ?? "") !== ""
    readonly property color ink: isChosen ? Glass.overProminent : entry.destructive === true ? Glass.danger : Glass.ink
    readonly property real naturalWidth: caption.implicitWidth + caption.anchors.leftMargin + caption.anchors.rightMargin

    signal taken
    signal moved(int by)

    implicitHeight: isSeparator ? 9 : 26
    radius: 6
    color: isChosen ? Glass.prominent : "transparent"
    enabled: isSelectable

    Keys.forwardTo: [area]
    Keys.onUpPressed: row.moved(-1)
    Keys.onDownPressed: row.moved(1)
    Keys.onTabPressed: row.moved(1)
    Keys.onBacktabPressed: row.moved(-1)
    Accessible.role: isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: spokenLabel
    Accessible.description: isSeparator || isSelectable ? "" : SpokenWords.unavailable
    Accessible.checkable: entry.checked !== undefined
    Accessible.checked: entry.checked === true
    Accessible.focusable: isSelectable
    Accessible.onPressAction: area.act()

    Rectangle {
        anchors.centerIn: parent
        visible: row.isSeparator
        width: parent.width - 12
        height: 1
        color: Glass.rule
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: row.entry.checked === true
        text: "✓"
        size: 12
        weight: Font.DemiBold
        color: row.ink
        Accessible.ignored: true
    }

    Symbol {
        x: row.LayoutMirroring.enabled ? row.width - width - 26 : 26
        anchors.verticalCenter: parent.verticalCenter
        visible: row.hasSymbol
        name: row.entry.symbol ?? ""
        size: 12
        tint: row.ink
    }

    Label {
        id: caption
        anchors.left: parent.left
        anchors.leftMargin: row.hasSymbol ? 48 : 26
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.isSeparator
        text: row.spokenLabel
        size: 12.5
        elide: Text.ElideRight
        opacity: row.isSelectable ? 1 : 0.4
        color: row.ink
        Accessible.ignored: true
    }

    PressArea {
        id: area
        anchors.fill: parent
        control: row
        hoverEnabled: true
        onEntered: row.forceActiveFocus(Qt.MouseFocusReason)
        onActivated: row.taken()
    }
}
