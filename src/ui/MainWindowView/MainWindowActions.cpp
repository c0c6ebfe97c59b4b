#include "ui/MainWindowView/MainWindowActions.hpp"

#include "base/Navigation.hpp"
#include "base/Scenes.hpp"

namespace kestrelfen {

void MainWindowActions::openSettings() {
    navigation_.setSettingsPane(SettingsPane::timing);
    showScene(windows_, Scene::settings);
}

} // namespace kestrelfen
