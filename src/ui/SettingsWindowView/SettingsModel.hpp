#pragma once

#include "base/Navigation.hpp"
#include "platform/ports/OverlayReach.hpp"
#include "platform/ports/Platform.hpp"
#include "ui/AppListEditor/AppListModel.hpp"
#include "ui/ChangeFollower.hpp"
#include "ui/LaunchAtLogin.hpp"
#include "ui/SettingsWindowView/HistoryDataActions.hpp"
#include "ui/SettingsWindowView/PaneModels.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"
#include "ui/SettingsWindowView/WebsiteStats.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

namespace kestrelfen {

class BreakEngine;
class BrowserScripting;
class KestrelfenStore;
class SmartPauseMonitor;
class TextFileWriter;

/// What the settings show and act upon; all of it outlives their window.
struct SettingsSources {
    using ChosenFile = std::function<void(const std::string& path)>;

    BreakEngine& engine;
    SmartPauseMonitor& smartPause;
    BrowserScripting& browserScripting;
    /// Null when history is unavailable.
    KestrelfenStore* store;
    TextFileWriter& fileWriter;
    Navigation& navigation;
    /// Lets the person choose a file to write, with that name proposed; `chosen` is not called when there is
    /// none.
    std::function<void(const std::string& proposedName, ChosenFile chosen)> chooseFile;
    /// Shows where the system lets the person allow that browsers are read.
    std::function<void()> openAutomationSettings;
    std::string appVersion;
    std::string buildNumber;
    /// Absent where there is no desktop to tell of.
    std::optional<OverlayReach> overlays = {};
};

/// Publishes the settings window and forwards its clicks. Main thread only.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString heading READ heading CONSTANT)
    Q_PROPERTY(QVariantList panes READ panes CONSTANT)
    Q_PROPERTY(int selectedPane READ selectedPane NOTIFY contentChanged)
    Q_PROPERTY(QString footer READ footer CONSTANT)
    Q_PROPERTY(bool hasMark READ hasMark NOTIFY contentChanged)
    Q_PROPERTY(QString title READ title NOTIFY contentChanged)
    Q_PROPERTY(QString sentence READ sentence NOTIFY contentChanged)
    Q_PROPERTY(kestrelfen::KeyedListModel* blocks READ blocks CONSTANT)
    Q_PROPERTY(QVariantMap deletionQuestion READ deletionQuestion CONSTANT)
    Q_PROPERTY(kestrelfen::AppListModel* editor READ editor NOTIFY editorChanged)

  public:
    SettingsModel(SettingsSources sources, const Platform& platform);

    QString heading() const;
    /// Their labels.
    QVariantList panes() const;
    int selectedPane() const { return static_cast<int>(pane_); }
    QString footer() const;
    bool hasMark() const { return content_.hasMark; }
    QString title() const;
    QString sentence() const;
    KeyedListModel* blocks() { return blocks_.model(); }
    /// `title`, `message`, `confirm` and `cancel`.
    QVariantMap deletionQuestion() const;
    /// The list that is being edited, or null.
    AppListModel* editor() const { return editor_.get(); }

    Q_INVOKABLE void selectPane(int index);
    Q_INVOKABLE void step(const QString& key, bool up);
    Q_INVOKABLE void choose(const QString& key, const QString& word);
    Q_INVOKABLE void turn(const QString& key, bool on);
    /// The button in a row of that key.
    Q_INVOKABLE void press(const QString& key);
    Q_INVOKABLE void closeEditor();
    Q_INVOKABLE void exportHistory();
    /// The person has confirmed it.
    Q_INVOKABLE void deleteHistory() { data_.deleteAllHistory(); }

  signals:
    void contentChanged();
    void editorChanged();

  private:
    PaneContent content() const;
    PaneContent aboutPane() const;
    void enter(SettingsPane pane);
    void refresh();
    void edit(std::optional<SmartPauseKind> kind);

    const SettingsSources sources_;
    const Platform platform_;
    SettingsControls controls_;
    LaunchAtLogin launchAtLogin_;
    WebsiteStats websiteStats_;
    HistoryDataActions data_;
    SettingsPane pane_;
    PaneContent content_;
    PaneBlocks blocks_;
    std::unique_ptr<AppListModel> editor_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
