import QtQuick
import Kestrelfen

/// The bar over the tabs: which one is shown, what the timer does, and the way to the settings.
Item {
    id: chrome

    required property MainWindowModel model

    SegmentedPills {
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        options: chrome.model.tabs
        selection: chrome.model.tab
        accentSelection: true
        spokenLabel: SpokenWords.view
        onChosen: value => chrome.model.chooseTab(value)
    }

    Label {
        anchors.right: settings.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: chrome.model.meta
        size: 12
        color: Glass.slate
    }

    ChromeButton {
        id: settings
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: "gearshape"
        tip: chrome.model.settingsTip
        onClicked: chrome.model.openSettings()
    }
}
