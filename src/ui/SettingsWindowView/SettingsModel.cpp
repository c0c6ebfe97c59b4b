#include "ui/SettingsWindowView/SettingsModel.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "platform/ports/Preferences.hpp"
#include "sensing/SmartPauseLists.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "ui/SettingsWindowView/AboutPane.hpp"
#include "ui/SettingsWindowView/AppearancePane.hpp"
#include "ui/SettingsWindowView/DeletionQuestion.hpp"
#include "ui/SettingsWindowView/EnforcementPane.hpp"
#include "ui/SettingsWindowView/NotificationsPane.hpp"
#include "ui/SettingsWindowView/PausingPane.hpp"
#include "ui/SettingsWindowView/SettingsRail.hpp"
#include "ui/SettingsWindowView/SmartPausePane.hpp"
#include "ui/SettingsWindowView/TimingPane.hpp"
#include "ui/SettingsWindowView/WebsiteStatsPane.hpp"
#include "ui/SettingsWindowView/WhatWorksContent.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

template <typename Case, typename KeyOf>
std::optional<Case> caseOf(const std::string& key, KeyOf keyOf) {
    for (const Case each : allCases<Case>()) {
        if (keyOf(each) == key) {
            return each;
        }
    }
    return std::nullopt;
}

std::optional<Browser> browserOf(const std::string& key) {
    return caseOf<Browser>(key, settingsKey);
}

} // namespace

SettingsModel::SettingsModel(SettingsSources sources, const Platform& platform)
    : sources_(std::move(sources)), platform_(platform), controls_(platform.preferences),
      launchAtLogin_(platform.loginItem), websiteStats_(platform, sources_.browserScripting),
      data_(platform, sources_.store, sources_.fileWriter), pane_(sources_.navigation.settingsPane()),
      follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(sources_.engine.observe(follower_.listener()));
    follower_.keep(sources_.smartPause.observe(follower_.listener()));
    follower_.keep(sources_.navigation.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    follower_.keep(launchAtLogin_.observe(follower_.listener()));
    follower_.keep(websiteStats_.observe(follower_.listener()));
    follower_.keep(data_.observe(follower_.listener()));
    enter(pane_);
    refresh();
}

QString SettingsModel::heading() const {
    return shownText(std::string_view(translated(SettingsRail::heading)));
}

QVariantList SettingsModel::panes() const {
    QVariantList labels;
    for (const SettingsPane pane : allCases<SettingsPane>()) {
        labels.append(shownText(std::string_view(SettingsRail::label(pane))));
    }
    return labels;
}

QString SettingsModel::footer() const {
    const std::string version = SettingsRail::version(sources_.appVersion, sources_.buildNumber);
    return shownText(std::string_view(version)) + u'\n' + shownText(SettingsRail::identifier);
}

QString SettingsModel::title() const {
    return shownText(std::string_view(content_.title));
}

QString SettingsModel::sentence() const {
    return shownText(std::string_view(content_.sentence));
}

QVariantMap SettingsModel::deletionQuestion() const {
    return {{"title", shownText(std::string_view(translated(DeletionQuestion::title)))},
            {"message", shownText(std::string_view(translated(DeletionQuestion::message)))},
            {"confirm", shownText(std::string_view(translated(DeletionQuestion::confirm)))},
            {"cancel", shownText(std::string_view(translated(DeletionQuestion::cancel)))}};
}

void SettingsModel::selectPane(int index) {
    sources_.navigation.setSettingsPane(allCases<SettingsPane>().at(static_cast<std::size_t>(index)));
}

void SettingsModel::step(const QString& key, bool up) {
    if (const Stepper* const stepper = Stepper::find(key.toStdString())) {
        controls_.step(*stepper, up ? StepDirection::up : StepDirection::down);
    }
}

void SettingsModel::choose(const QString& key, const QString& word) {
    const SettingChoice* const choice = SettingChoice::find(key.toStdString());
    const SettingChoice::Option* const option = choice ? choice->option(word.toStdString()) : nullptr;
    if (option) {
        controls_.choose(*choice, *option);
    }
}

void SettingsModel::turn(const QString& key, bool on) {
    if (key == QLatin1String(LaunchAtLogin::key)) {
        launchAtLogin_.set(on);
    } else if (const auto browser = browserOf(key.toStdString())) {
        websiteStats_.turn(*browser, on);
    } else {
        choose(key, on ? "true" : "false");
    }
}

void SettingsModel::press(const QString& key) {
    if (browserOf(key.toStdString())) {
        sources_.openAutomationSettings();
    } else {
        edit(caseOf<SmartPauseKind>(key.toStdString(), SmartPauseLists::enableKey));
    }
}

void SettingsModel::closeEditor() {
    edit(std::nullopt);
}

void SettingsModel::edit(std::optional<SmartPauseKind> kind) {
    auto old = std::move(editor_);
    editor_ = kind ? std::make_unique<AppListModel>(platform_, *kind) : nullptr;
    emit editorChanged();
    if (old) {
        // The click that ended it is still under way in its view.
        old.release()->deleteLater();
    }
}

void SettingsModel::exportHistory() {
    sources_.chooseFile(HistoryDataActions::proposedFileName,
                        [this](const std::string& path) { data_.exportCSV(path); });
}

void SettingsModel::enter(SettingsPane pane) {
    pane_ = pane;
    if (pane == SettingsPane::timing) {
        launchAtLogin_.reload();
    } else if (pane == SettingsPane::websiteStats) {
        websiteStats_.reload();
    }
    if (editor_) {
        closeEditor();
    }
}

PaneContent SettingsModel::content() const {
    switch (pane_) {
    case SettingsPane::timing:
        return TimingPane::content(platform_.preferences, launchAtLogin_);
    case SettingsPane::enforcement:
        return EnforcementPane::content(platform_.preferences);
    case SettingsPane::smartPause:
        return SmartPausePane::content(platform_.preferences, sources_.smartPause);
    case SettingsPane::pausing:
        return PausingPane::content(platform_.preferences);
    case SettingsPane::websiteStats:
        return WebsiteStatsPane::content(websiteStats_);
    case SettingsPane::notifications:
        return NotificationsPane::content(sources_.engine, platform_.preferences, data_);
    case SettingsPane::appearance:
        return AppearancePane::content(platform_.preferences);
    case SettingsPane::about:
        return aboutPane();
    }
    return {};
}

/// Asked anew at each tick of the engine, so that what comes or goes meanwhile is told.
PaneContent SettingsModel::aboutPane() const {
    PaneContent pane = AboutPane::content();
    if (sources_.overlays) {
        WhatWorksContent::of(DesktopAnswers::of(platform_, *sources_.overlays)).addTo(pane);
    }
    return pane;
}

void SettingsModel::refresh() {
    const SettingsPane pane = sources_.navigation.settingsPane();
    const bool isOther = pane != pane_;
    if (isOther) {
        enter(pane);
    }
    PaneContent next = content();
    if (isOther || next != content_) {
        content_ = std::move(next);
        blocks_.assign(QString::number(selectedPane()), content_.blocks);
        emit contentChanged();
    }
}

} // namespace kestrelfen
