import QtQuick
import Kestrelfen

/// The popover: where the cycle stands, what can be done now, the day's numbers and the ways into the windows. It
/// fills a window of its own, with room for its shadow where the desktop can blend; without, the window is cut to it.
Item {
    id: view

    required property MenuBarModel model
    required property bool blended
    readonly property int radius: 14
    /// Without blending nothing may shine through.
    readonly property color solidFill: Glass.wallpaper2
    readonly property int sideRoom: blended ? 32 : 0
    readonly property int topRoom: blended ? 18 : 0
    readonly property int bottomRoom: blended ? 46 : 0
    readonly property var application: Qt.application

    signal dismissed

    function moveFocus(forward: bool): void {
        const from = view.Window.activeFocusItem;
        const next = from ? from.nextItemInFocusChain(forward) : null;
        if (next) {
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
        }
    }

    implicitWidth: sheet.width + 2 * sideRoom
    implicitHeight: sheet.height + topRoom + bottomRoom
    focus: true

    LayoutMirroring.enabled: application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Keys.onEscapePressed: view.dismissed()
    Keys.onLeftPressed: view.moveFocus(view.LayoutMirroring.enabled)
    Keys.onRightPressed: view.moveFocus(!view.LayoutMirroring.enabled)
    Keys.onUpPressed: view.moveFocus(false)
    Keys.onDownPressed: view.moveFocus(true)

    Accessible.role: Accessible.Dialog
    Accessible.name: "Kestrelfen"

    CardShadow {
        anchors.fill: parent
        visible: view.blended
        card: Qt.rect(sheet.x, sheet.y, sheet.width, sheet.height)
        radius: view.radius
        blur: 34
        drop: 14
        strength: Glass.dark ? 0.45 : 0.22
    }

    /// Around the card is outside of it.
    MouseArea {
        anchors.fill: parent
        onPressed: view.dismissed()
    }

    Wash {
        id: sheet
        x: view.sideRoom
        y: view.topRoom
        width: 352
        height: column.height
        radius: view.radius
        first: Glass.wallpaper2
        second: Glass.wallpaper1
        third: Glass.wallpaper4
        blur: Glass.blur
        veil: Glass.glass

        MouseArea {
            anchors.fill: parent
        }

        MenuBarColumn {
            id: column
            width: parent.width
            model: view.model
        }

        Rectangle {
            anchors.fill: parent
            radius: view.radius
            color: "transparent"
            border.width: 1
            border.color: Glass.hudBorder
        }
    }
}
