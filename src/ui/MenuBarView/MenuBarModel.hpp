#pragma once

#include "platform/ports/Platform.hpp"
#include "ui/ChangeFollower.hpp"
#include "ui/ControlListModel.hpp"
#include "ui/MenuBarView/ActiveTask.hpp"
#include "ui/MenuBarView/MenuBarActions.hpp"
#include "ui/MenuBarView/MenuBarContent.hpp"
#include "ui/MenuBarView/MenuBarFooter.hpp"
#include "ui/MenuBarView/MenuBarSources.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the content of the popover while it is shown and forwards its clicks. Main thread only.
class MenuBarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString eyebrow READ eyebrow NOTIFY contentChanged)
    Q_PROPERTY(QString value READ value NOTIFY contentChanged)
    Q_PROPERTY(QString caption READ caption NOTIFY contentChanged)
    Q_PROPERTY(QString cycleText READ cycleText NOTIFY contentChanged)
    Q_PROPERTY(double ringRemaining READ ringRemaining NOTIFY contentChanged)
    Q_PROPERTY(QString ringLabel READ ringLabel NOTIFY contentChanged)
    Q_PROPERTY(kestrelfen::ControlListModel* controls READ controls CONSTANT)
    Q_PROPERTY(int prominentKey READ prominentKey CONSTANT)
    Q_PROPERTY(QString todayEyebrow READ todayEyebrow CONSTANT)
    Q_PROPERTY(QString breaksTitle READ breaksTitle CONSTANT)
    Q_PROPERTY(QString breaks READ breaks NOTIFY contentChanged)
    Q_PROPERTY(double completionRate READ completionRate NOTIFY contentChanged)
    Q_PROPERTY(QString screenTimeTitle READ screenTimeTitle CONSTANT)
    Q_PROPERTY(QString screenTime READ screenTime NOTIFY contentChanged)
    Q_PROPERTY(QString skippedTitle READ skippedTitle CONSTANT)
    Q_PROPERTY(QString skipped READ skipped NOTIFY contentChanged)
    Q_PROPERTY(bool hasActiveTask READ hasActiveTask NOTIFY contentChanged)
    Q_PROPERTY(QString activeTaskTitle READ activeTaskTitle NOTIFY contentChanged)
    Q_PROPERTY(QString activeTaskCaption READ activeTaskCaption CONSTANT)
    Q_PROPERTY(QString activeTaskCredits READ activeTaskCredits NOTIFY contentChanged)
    Q_PROPERTY(QVariantList destinations READ destinations CONSTANT)
    Q_PROPERTY(QVariantMap quitItem READ quitItem CONSTANT)

  public:
    /// `activeTask` is loaded by its owner, and outlives the model too.
    MenuBarModel(const MenuBarSources& sources, const Platform& platform, ActiveTask& activeTask);

    QString eyebrow() const { return QString::fromStdString(content_.eyebrow); }
    QString value() const { return QString::fromStdString(content_.value); }
    QString caption() const;
    QString cycleText() const { return QString::fromStdString(content_.cycleText); }
    double ringRemaining() const { return content_.ringRemaining; }
    QString ringLabel() const { return QString::fromStdString(content_.ringLabel); }
    ControlListModel* controls() { return &controls_; }
    int prominentKey() const;

    QString todayEyebrow() const;
    QString breaksTitle() const;
    QString breaks() const { return QString::fromStdString(content_.breaks); }
    double completionRate() const { return content_.completionRate; }
    QString screenTimeTitle() const;
    QString screenTime() const { return QString::fromStdString(content_.screenTime); }
    QString skippedTitle() const;
    QString skipped() const { return QString::number(content_.skipped); }

    bool hasActiveTask() const { return content_.activeTask.has_value(); }
    QString activeTaskTitle() const;
    QString activeTaskCaption() const;
    QString activeTaskCredits() const;

    /// Each has a `key`, a `title` and a `symbol`.
    QVariantList destinations() const;
    QVariantMap quitItem() const;

    /// A click on the button with that key.
    Q_INVOKABLE void press(int key);
    /// A click on the footer's item with that key.
    Q_INVOKABLE void go(int key);

  signals:
    void contentChanged();
    /// An item of the footer has led elsewhere.
    void left();

  private:
    void refresh();
    void showButtons();

    const MenuBarSources sources_;
    ActiveTask& activeTask_;
    MenuBarActions actions_;
    MenuBarFooter footer_;
    MenuBarContent content_;
    ControlListModel controls_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
