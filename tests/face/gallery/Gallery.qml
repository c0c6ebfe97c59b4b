import QtQuick
import Kestrelfen

/// Every component of the kit in every state.
Item {
    id: gallery

    property bool mirrored: false
    property string sheet: ""

    width: 1180
    height: 980
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true

    Backdrop {
        anchors.fill: parent
    }

    Row {
        x: 24
        y: 24
        spacing: 24

        GalleryRows {
            width: 560
        }

        GalleryPieces {
            width: 530
        }
    }

    ConfirmDialog {
        title: "Clear 2 completed tasks?"
        message: "They are removed for good, with their counts of intervals. Breaks that were credited stay in the history."
        destructiveLabel: "Clear Completed"
        cancelLabel: "Cancel"
        isOpen: gallery.sheet === "confirm"
    }

    SheetCard {
        isOpen: gallery.sheet === "sheet"
        spokenLabel: "Meetings or Calls"

        GalleryList {
            width: 412
            height: 300
        }
    }

    PopupMenu {
        id: menu
        entries: [
            {
                label: "Work",
                value: 1
            },
            {
                label: "Communication",
                value: 2,
                checked: true
            },
            {
                label: "Media",
                value: 3,
                enabled: false
            },
            {
                separator: true
            },
            {
                label: "Use the Default",
                value: 4
            }
        ]
    }

    Item {
        id: menuPlace
        x: 640
        y: 700
        width: 90
        height: 20
    }

    Component.onCompleted: {
        if (sheet === "menu") {
            menu.open(menuPlace);
        }
    }
}
