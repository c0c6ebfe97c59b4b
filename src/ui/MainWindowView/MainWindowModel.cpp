#include "ui/MainWindowView/MainWindowModel.hpp"

#include "base/Translated.hpp"
#include "platform/ports/Preferences.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

MainWindowModel::MainWindowModel(const MainWindowSources& sources, const Platform& platform,
                                 MakeOnboarding makeOnboarding)
    : sources_(sources), platform_(platform), actions_(sources.navigation, sources.windows),
      dashboard_(sources, platform), history_(platform, sources.engine, sources.store),
      tasks_(platform, sources.engine, sources.store), makeOnboarding_(std::move(makeOnboarding)),
      follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(sources_.engine.observe(follower_.listener()));
    follower_.keep(sources_.navigation.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

QVariantList MainWindowModel::tabs() const {
    QVariantList list;
    for (const MainTab each : allCases<MainTab>()) {
        list.append(QVariantMap{{"value", shownText(rawValue(each))},
                                {"label", shownText(std::string_view(mainTabLabel(each)))}});
    }
    return list;
}

QString MainWindowModel::tab() const {
    return shownText(rawValue(sources_.navigation.mainTab()));
}

QString MainWindowModel::settingsTip() const {
    return shownText(std::string_view(translated(MainWindowContent::settingsTip)));
}

void MainWindowModel::chooseTab(const QString& tab) {
    if (const auto chosen = fromRawValue<MainTab>(tab.toStdString())) {
        sources_.navigation.setMainTab(*chosen);
    }
}

void MainWindowModel::refresh() {
    content_ = MainWindowContent::of(sources_.engine, platform_.preferences);
    std::unique_ptr<QObject> over;
    if (!content_.showsOnboarding) {
        over = std::move(onboarding_);
    } else if (!onboarding_ && makeOnboarding_) {
        onboarding_ = makeOnboarding_();
    }
    emit contentChanged();
    if (over) {
        // After its view, which ends a turn later.
        over.release()->deleteLater();
    }
}

} // namespace kestrelfen
