import QtQuick
import Kestrelfen

/// The bar of the main window and the tab that is chosen on it.
Item {
    id: tabs

    required property MainWindowModel model
    readonly property string chosen: model.tab
    readonly property var views: ({
            screenTime: ["ScreenTimeView.qml", model.dashboard],
            breaks: ["BreakHistoryView.qml", model.history],
            tasks: ["TasksView.qml", model.tasks]
        })

    function showChosen() {
        const [view, content] = views[chosen];
        tab.setSource(view, {
            model: content
        });
    }

    onChosenChanged: showChosen()
    Component.onCompleted: showChosen()

    MainChrome {
        id: chrome
        width: parent.width
        height: 50
        model: tabs.model
    }

    Rectangle {
        y: chrome.height
        width: parent.width
        height: 1
        color: Glass.rule
    }

    Loader {
        id: tab
        anchors.fill: parent
        anchors.topMargin: chrome.height + 1
    }
}
