#include "ui/MenuBarView/MenuBarFooter.hpp"

#include "base/Navigation.hpp"
#include "base/Scenes.hpp"

namespace kestrelfen {

void MenuBarFooter::perform(FooterItem item) {
    switch (item) {
    case FooterItem::screenTime:
        navigation_.setMainTab(MainTab::screenTime);
        return showScene(windows_, Scene::main);
    case FooterItem::usageDetail:
        navigation_.setMainTab(MainTab::screenTime);
        navigation_.setPendingUsageDetail(UsageSource::apps);
        return showScene(windows_, Scene::main);
    case FooterItem::tasks:
        navigation_.setMainTab(MainTab::tasks);
        return showScene(windows_, Scene::main);
    case FooterItem::breaks:
        navigation_.setMainTab(MainTab::breaks);
        return showScene(windows_, Scene::main);
    case FooterItem::settings:
        navigation_.setSettingsPane(SettingsPane::timing);
        return showScene(windows_, Scene::settings);
    case FooterItem::quit:
        return quit_();
    }
}

} // namespace kestrelfen
