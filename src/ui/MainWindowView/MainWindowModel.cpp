#include "ui/MainWindowView/MainWindowModel.hpp"

#include "platform/ports/Preferences.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

MainWindowModel::MainWindowModel(const MainWindowSources& sources, const Platform& platform,
                                 const MakeOnboarding& makeOnboarding)
    : sources_(sources), platform_(platform), actions_(sources.navigation, sources.windows),
      dashboard_(sources, platform), history_(platform, sources.engine, sources.store),
      tasks_(platform, sources.engine, sources.store), follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(sources_.engine.observe(follower_.listener()));
    follower_.keep(sources_.navigation.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
    if (content_.showsOnboarding && makeOnboarding) {
        onboarding_ = makeOnboarding();
    }
}

QVariantList MainWindowModel::tabs() const {
    QVariantList list;
    for (const MainTab each : allCases<MainTab>()) {
        list.append(
            QVariantMap{{"value", shownText(rawValue(each))}, {"label", shownText(mainTabLabel(each))}});
    }
    return list;
}

QString MainWindowModel::tab() const {
    return shownText(rawValue(sources_.navigation.mainTab()));
}

QString MainWindowModel::settingsTip() const {
    return shownText(MainWindowContent::settingsTip);
}

void MainWindowModel::chooseTab(const QString& tab) {
    if (const auto chosen = fromRawValue<MainTab>(tab.toStdString())) {
        sources_.navigation.setMainTab(*chosen);
    }
}

void MainWindowModel::refresh() {
    content_ = MainWindowContent::of(sources_.engine, platform_.preferences);
    emit contentChanged();
}

} // namespace kestrelfen
