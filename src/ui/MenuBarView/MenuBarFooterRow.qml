pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The ways into the windows, and out of the program.
Item {
    id: footer

    required property MenuBarModel model
    /// The button that the pointer rests on.
    property FooterButton pointed: null
    readonly property var quitItem: model.quitItem

    implicitHeight: 26 + 16

    function point(button: FooterButton, isPointedAt: bool): void {
        if (isPointedAt) {
            pointed = button;
        } else if (pointed === button) {
            pointed = null;
        }
    }

    component Destination: FooterButton {
        required property int key

        y: 8
        onIsPointedAtChanged: footer.point(this, isPointedAt)
        onClicked: footer.model.go(key)
    }

    Repeater {
        model: footer.model.destinations
        delegate: Destination {
            required property int index
            required property var modelData

            anchors.left: parent?.left
            anchors.leftMargin: 12 + index * (width + 2)
            key: modelData.key
            symbol: modelData.symbol
            spokenLabel: modelData.title
        }
    }

    Destination {
        anchors.right: parent.right
        anchors.rightMargin: 12
        key: footer.quitItem.key
        symbol: footer.quitItem.symbol
        spokenLabel: footer.quitItem.title
        tint: Glass.slate
    }

    HoverTip {
        target: footer.pointed
        text: footer.pointed ? footer.pointed.spokenLabel : ""
    }
}
