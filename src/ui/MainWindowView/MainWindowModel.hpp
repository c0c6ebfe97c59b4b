#pragma once

#include "ui/BreakHistoryView/HistoryModel.hpp"
#include "ui/MainWindowView/MainWindowActions.hpp"
#include "ui/MainWindowView/MainWindowContent.hpp"
#include "ui/ScreenTimeView/DashboardModel.hpp"
#include "ui/TasksView/TasksModel.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace kestrelfen {

/// Publishes the main window's content and forwards its clicks. Main thread only.
class MainWindowModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool showsOnboarding READ showsOnboarding NOTIFY contentChanged)
    Q_PROPERTY(QObject* onboarding READ onboarding NOTIFY contentChanged)
    Q_PROPERTY(QString meta READ meta NOTIFY contentChanged)
    Q_PROPERTY(QVariantList tabs READ tabs CONSTANT)
    Q_PROPERTY(QString tab READ tab NOTIFY contentChanged)
    Q_PROPERTY(QString settingsTip READ settingsTip CONSTANT)
    Q_PROPERTY(kestrelfen::DashboardModel* dashboard READ dashboard CONSTANT)
    Q_PROPERTY(kestrelfen::HistoryModel* history READ history CONSTANT)
    Q_PROPERTY(kestrelfen::TasksModel* tasks READ tasks CONSTANT)

  public:
    using MakeOnboarding = std::function<std::unique_ptr<QObject>()>;

    /// `makeOnboarding` makes what the first run's welcome shows; asked each time that is to be shown.
    MainWindowModel(const MainWindowSources& sources, const Platform& platform,
                    MakeOnboarding makeOnboarding);

    bool showsOnboarding() const { return content_.showsOnboarding; }
    /// Null while there is no welcome to show.
    QObject* onboarding() const { return onboarding_.get(); }
    QString meta() const { return QString::fromStdString(content_.meta); }
    /// Each has a `value` and a `label`.
    QVariantList tabs() const;
    QString tab() const;
    QString settingsTip() const;
    DashboardModel* dashboard() { return &dashboard_; }
    HistoryModel* history() { return &history_; }
    TasksModel* tasks() { return &tasks_; }

    Q_INVOKABLE void chooseTab(const QString& tab);
    Q_INVOKABLE void openSettings() { actions_.openSettings(); }

  signals:
    void contentChanged();

  private:
    void refresh();

    const MainWindowSources sources_;
    const Platform platform_;
    MainWindowActions actions_;
    MainWindowContent content_;
    std::unique_ptr<QObject> onboarding_;
    DashboardModel dashboard_;
    HistoryModel history_;
    TasksModel tasks_;
    const MakeOnboarding makeOnboarding_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
