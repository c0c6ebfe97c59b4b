import QtQuick
import Kestrelfen

/// The dashboard: where the cycle stands, the week, the score, and what the time went to.
Item {
    id: view

    required property DashboardModel model
    readonly property bool isDetailUp: model.isDetailUp

    function showDetail() {
        if (isDetailUp) {
            sheet.setSource("UsageDetailView.qml", {
                model: model.detail
            });
        } else {
            sheet.source = "";
        }
    }

    onIsDetailUpChanged: showDetail()
    onVisibleChanged: {
        // The model goes before the view does.
        if (model) {
            visible ? model.show() : model.hide();
        }
    }
    Component.onCompleted: {
        if (visible) {
            model.show();
        }
    }
    Component.onDestruction: model.hide()

    ScrollArea {
        anchors.fill: parent
        topPadding: 22
        bottomPadding: 26
        Accessible.ignored: true

        Column {
            x: 24
            width: view.width - 48
            spacing: 14

            StoreBanner {
                width: parent.width
                visible: view.model.banner !== ""
                text: view.model.banner
            }

            Item {
                id: columns

                readonly property real sideWidth: 320
                readonly property real fullHeight: Math.max(hero.height + 14 + week.implicitHeight, score.implicitHeight + 14 + usage.implicitHeight)

                width: parent.width
                height: fullHeight

                HeroCard {
                    id: hero
                    width: parent.width - columns.sideWidth - 14
                    height: implicitHeight
                    model: view.model
                }

                WeekCard {
                    id: week
                    y: hero.height + 14
                    width: hero.width
                    height: columns.fullHeight - y
                    model: view.model
                }

                ScoreCard {
                    id: score
                    anchors.right: parent.right
                    width: columns.sideWidth
                    height: implicitHeight
                    score: view.model.score
                }

                UsageCard {
                    id: usage
                    anchors.right: parent.right
                    y: score.height + 14
                    width: columns.sideWidth
                    height: columns.fullHeight - y
                    model: view.model
                }
            }
        }
    }

    SheetCard {
        isOpen: view.isDetailUp
        sheetWidth: 620
        sheetHeight: 560
        padding: 0
        spokenLabel: view.model.detail?.title ?? ""
        onDismissed: view.model.closeDetail()

        Loader {
            id: sheet
            width: 620
            height: 560
        }

        Connections {
            target: sheet.item
            ignoreUnknownSignals: true

            function onDone() {
                view.model.closeDetail();
            }
        }
    }
}
