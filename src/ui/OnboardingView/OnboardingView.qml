pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The first run, in the place of the main window's tabs: a welcome, then the cadence.
Item {
    id: view

    required property OnboardingModel model
    readonly property var words: model.page === 0 ? model.welcome : model.cadence
    readonly property real room: Math.max(24, Math.min(40, (height - card.height) / 2))

    Wash {
        anchors.fill: parent
        first: Glass.wallpaper2
        second: Glass.wallpaper1
        third: Glass.wallpaper4
        blur: "transparent"
        veil: "transparent"
    }

    ScrollArea {
        anchors.fill: parent
        topPadding: Math.max(view.room, (height - card.height) / 2)
        bottomPadding: view.room
        Accessible.name: view.words.title

        GlassSurface {
            id: card
            x: Math.round((view.width - width) / 2)
            width: 560
            height: column.height + 38 + 32
            radius: 24

            Column {
                id: column
                x: 40
                y: 38
                width: parent.width - 80
                spacing: 22

                // A Loader of this Qt cannot make bound components.
                Repeater {
                    model: 1
                    delegate: view.model.page === 0 ? welcome : cadence
                }

                PageDots {
                    anchors.horizontalCenter: parent.horizontalCenter
                    current: view.model.page
                    spokenLabel: view.model.spokenPage
                }
            }
        }
    }

    Component {
        id: welcome

        WelcomePage {
            width: column.width
            model: view.model
        }
    }

    Component {
        id: cadence

        CadencePage {
            width: column.width
            model: view.model
        }
    }
}
