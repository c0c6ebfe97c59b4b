import QtQuick
import Kestrelfen

/// The main window: the first run's welcome, and from then on a bar over one of three tabs.
Item {
    id: view

    required property MainWindowModel model
    readonly property var application: Qt.application
    readonly property bool showsOnboarding: model.showsOnboarding

    function showContent() {
        if (!model.showsOnboarding) {
            content.setSource("MainTabs.qml", {
                model: model
            });
        } else if (model.onboarding !== null) {
            content.setSource("OnboardingView.qml", {
                model: model.onboarding
            });
        }
    }

    implicitWidth: 1040
    implicitHeight: 660

    LayoutMirroring.enabled: application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Pane
    Accessible.name: "Kestrelfen"

    onShowsOnboardingChanged: showContent()
    Component.onCompleted: showContent()

    Backdrop {
        anchors.fill: parent
        veil: Glass.glass
    }

    Loader {
        id: content
        anchors.fill: parent
    }
}
