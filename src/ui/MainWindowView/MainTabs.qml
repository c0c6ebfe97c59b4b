pragma ComponentBehavior: Bound

import QtQuick
import Kestrelfen

/// The bar of the main window and the tab that is chosen on it.
Item {
    id: tabs

    required property MainWindowModel model
    readonly property string chosen: model.tab
    readonly property var choices: model.tabs
    readonly property var tabViews: [
        {
            name: "screenTime",
            view: "ScreenTimeView.qml",
            model: model.dashboard
        },
        {
            name: "breaks",
            view: "BreakHistoryView.qml",
            model: model.history
        },
        {
            name: "tasks",
            view: "TasksView.qml",
            model: model.tasks
        }
    ]

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

    // A tab is made when it is first chosen, and kept, so that going back to it takes no time.
    Repeater {
        model: tabs.tabViews
        delegate: Loader {
            id: tab

            required property var modelData
            readonly property bool isChosen: modelData.name === tabs.chosen

            function showIfChosen() {
                if (isChosen && status === Loader.Null) {
                    setSource(modelData.view, {
                        model: modelData.model
                    });
                }
            }

            anchors.fill: parent
            anchors.topMargin: chrome.height + 1
            visible: isChosen
            Accessible.role: Accessible.Pane
            Accessible.name: tabs.choices.find(each => each.value === modelData.name)?.label ?? ""
            // What is hidden would keep the keyboard.
            enabled: isChosen
            onIsChosenChanged: showIfChosen()
            Component.onCompleted: showIfChosen()
        }
    }
}
