import QtQuick
import Kestrelfen

/// Shows what is too high for its place: by the wheel, a finger, the bar, Page Up and Page Down, Home and End. What
/// gets the keyboard comes into view.
Item {
    id: area

    default property alias content: body.data
    property real topPadding: 0
    property real bottomPadding: 0
    readonly property real contentHeight: body.childrenRect.height + topPadding + bottomPadding
    readonly property real mostDown: Math.max(0, contentHeight - height)
    /// How far the content is moved up.
    property real offset: 0
    readonly property Item focused: Window.activeFocusItem

    function scrollTo(place: real) {
        offset = Math.max(0, Math.min(mostDown, Math.round(place)));
    }

    function scrollBy(distance: real) {
        scrollTo(offset + distance);
    }

    /// Moves as little as shows all of `item`, with some room around.
    function show(item: Item) {
        const top = item.mapToItem(body, 0, 0).y + topPadding;
        const room = Math.min(16, Math.max(0, (height - item.height) / 2));
        if (top - room < offset) {
            scrollTo(top - room);
        } else if (top + item.height + room > offset + height) {
            scrollTo(top + item.height + room - height);
        }
    }

    function holds(item: Item): bool {
        for (let each = item; each; each = each.parent) {
            if (each === body) {
                return true;
            }
        }
        return false;
    }

    implicitWidth: body.childrenRect.width
    implicitHeight: contentHeight

    onMostDownChanged: scrollTo(offset)
    onFocusedChanged: {
        if (focused && focused.height < height && holds(focused)) {
            show(focused);
        }
    }

    Accessible.role: Accessible.Pane

    Keys.onPressed: event => {
        const places = {
            [Qt.Key_PageUp]: offset - height * 0.9,
            [Qt.Key_PageDown]: offset + height * 0.9,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: mostDown
        };
        if (mostDown > 0 && event.key in places) {
            scrollTo(places[event.key]);
            event.accepted = true;
        }
    }

    // Wider than the area, so that the keyboard's ring around what stands at an edge is not cut.
    Item {
        x: -6
        width: area.width + 12
        height: area.height
        clip: true

        Item {
            id: body
            x: 6
            y: area.topPadding - area.offset
            width: area.width
            height: childrenRect.height
        }
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => area.scrollBy(-(event.pixelDelta.y || event.angleDelta.y / 2))
    }

    DragHandler {
        target: null
        acceptedDevices: PointerDevice.TouchScreen
        xAxis.enabled: false

        property real startOffset: 0

        onActiveChanged: startOffset = area.offset
        onTranslationChanged: area.scrollTo(startOffset - translation.y)
    }

    ScrollThumb {
        anchors.right: parent.right
        share: area.mostDown > 0 ? area.height / area.contentHeight : 1
        place: area.mostDown > 0 ? area.offset / area.mostDown : 0
        onDragged: place => area.scrollTo(place * area.mostDown)
    }
}
