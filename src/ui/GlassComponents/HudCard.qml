import QtQuick
import Kestrelfen

/// A floating card with its shadow, in a window of its own. Where the desktop cannot blend, the window is cut to the
/// card and there is no shadow.
Item {
    id: card

    required property bool blended
    property int radius: 18
    property color fill: Glass.hudFill
    default property alias content: body.data

    /// Without blending nothing may shine through.
    readonly property color solidFill: Qt.rgba(fill.r, fill.g, fill.b, 1)

    readonly property int sideRoom: blended ? 18 : 0
    readonly property int topRoom: blended ? 10 : 0
    readonly property int bottomRoom: blended ? 26 : 0

    implicitWidth: body.implicitWidth + 2 * sideRoom
    implicitHeight: body.implicitHeight + topRoom + bottomRoom

    CardShadow {
        anchors.fill: parent
        visible: card.blended
        card: Qt.rect(body.x, body.y, body.width, body.height)
        radius: card.radius
    }

    Rectangle {
        id: body
        x: card.sideRoom
        y: card.topRoom
        width: implicitWidth
        height: implicitHeight
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height
        radius: card.radius
        color: card.blended ? card.fill : card.solidFill
    }

    // Over the content, which reaches to the edges.
    Rectangle {
        anchors.fill: body
        radius: card.radius
        color: "transparent"
        border.width: 1
        border.color: Glass.hudBorder
    }
}
