#pragma once

#include "core/BreakEngine.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "ui/ChangeFollower.hpp"
#include "ui/ControlListModel.hpp"
#include "ui/MainWindowSources.hpp"
#include "ui/RowListModel.hpp"
#include "ui/ScreenTimeView/Dashboard.hpp"
#include "ui/ScreenTimeView/DashboardActions.hpp"
#include "ui/ScreenTimeView/DashboardContent.hpp"
#include "ui/UsageDetailView/UsageDetailModel.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace kestrelfen {

/// Publishes the content of the dashboard while it is shown and forwards its clicks. Main thread only.
class DashboardModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString banner READ banner NOTIFY contentChanged)
    Q_PROPERTY(QVariantMap hero READ hero NOTIFY heroChanged)
    Q_PROPERTY(kestrelfen::ControlListModel* controls READ controls CONSTANT)
    Q_PROPERTY(QVariantMap week READ week NOTIFY weekChanged)
    Q_PROPERTY(QVariantMap score READ score NOTIFY scoreChanged)
    Q_PROPERTY(QVariantMap usage READ usage NOTIFY usageChanged)
    Q_PROPERTY(QVariantList usageSources READ usageSources CONSTANT)
    Q_PROPERTY(kestrelfen::RowListModel* usageRows READ usageRows CONSTANT)
    Q_PROPERTY(kestrelfen::UsageDetailModel* detail READ detail NOTIFY detailChanged)
    Q_PROPERTY(bool isDetailUp READ isDetailUp NOTIFY isDetailUpChanged)

  public:
    DashboardModel(const MainWindowSources& sources, const Platform& platform);

    QString banner() const;
    /// `ringRemaining`, `ringLabel`, `ringCaption`, `headline`, `subhead`, and `stats` with `value`, `label`
    /// and `tint` each.
    QVariantMap hero() const;
    ControlListModel* controls() { return &controls_; }
    /// `title`, `subtitle`, `isHovering`, `bars`, `gridlines`, `targetLine` (-1 for none) and the legend.
    QVariantMap week() const;
    /// `title`, `caption`, `value`, `valueTint`, `label`, `labelTint`, `meters` and `suggestion`.
    QVariantMap score() const;
    /// `source`, `title`, `seeAll`, `emptyNote` and `footnote`.
    QVariantMap usage() const;
    /// Each has a `value` and a `label`.
    QVariantList usageSources() const;
    RowListModel* usageRows() { return &usageRows_; }
    /// What the sheet shows; null without one.
    UsageDetailModel* detail() const { return detail_.get(); }
    /// Ends before `detail` does.
    bool isDetailUp() const { return isDetailUp_; }

    /// Loads, and follows what changes, until it is hidden.
    Q_INVOKABLE void show();
    Q_INVOKABLE void hide();

    /// A click on the button with that key.
    Q_INVOKABLE void press(int key);
    /// The pointer or the keyboard has come to the bar at that place, or has left it.
    Q_INVOKABLE void hover(int bar);
    Q_INVOKABLE void leave(int bar);
    /// What a bar of that height takes of a plot of so many points.
    Q_INVOKABLE double barPoints(double height, double plotHeight) const;
    Q_INVOKABLE void chooseUsageSource(const QString& source);
    Q_INVOKABLE void seeAll() { dashboard_.seeAll(); }
    Q_INVOKABLE void closeDetail() { dashboard_.closeDetail(); }

  signals:
    void contentChanged();
    void heroChanged();
    void weekChanged();
    void scoreChanged();
    void usageChanged();
    void detailChanged();
    void isDetailUpChanged();

  private:
    std::optional<Date> dayOf(int bar) const;
    void follow();
    void refresh();
    void tell(const DashboardContent& before);
    void showButtons();
    void showUsageRows();
    void showDetail();
    void openDetail();
    void removeDetail();

    const MainWindowSources sources_;
    const Platform platform_;
    Dashboard dashboard_;
    DashboardActions actions_;
    DashboardContent content_;
    ControlListModel controls_;
    RowListModel usageRows_;
    std::unique_ptr<UsageDetailModel> detail_;
    bool isDetailUp_ = false;
    bool isShown_ = false;
    ChangeFollower follower_;
};

} // namespace kestrelfen
