#pragma once

#include "ui/ChangeFollower.hpp"
#include "ui/RowListModel.hpp"
#include "ui/UsageDetailView/UsageDetail.hpp"
#include "ui/UsageDetailView/UsageDetailContent.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the content of the usage sheet and forwards its clicks. Main thread only.
class UsageDetailModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString done READ done CONSTANT)
    Q_PROPERTY(QString summaryLine READ summaryLine NOTIFY contentChanged)
    Q_PROPERTY(QVariantList sources READ sources CONSTANT)
    Q_PROPERTY(QString source READ source NOTIFY contentChanged)
    Q_PROPERTY(QVariantList ranges READ ranges CONSTANT)
    Q_PROPERTY(QString range READ range NOTIFY contentChanged)
    Q_PROPERTY(QVariantList chips READ chips NOTIFY chipsChanged)
    Q_PROPERTY(kestrelfen::RowListModel* rows READ rows CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY contentChanged)
    Q_PROPERTY(QString firstNote READ firstNote NOTIFY contentChanged)
    Q_PROPERTY(QString secondNote READ secondNote NOTIFY contentChanged)

  public:
    UsageDetailModel(const Platform& platform, KestrelfenStore* store, const UsageDetail::Opening& opening);

    QString title() const;
    QString done() const;
    QString summaryLine() const { return QString::fromStdString(content_.summaryLine); }
    /// Each has a `value` and a `label`.
    QVariantList sources() const;
    QString source() const;
    QVariantList ranges() const;
    QString range() const;
    /// Each has a `category`, empty for all, a `label`, a `symbol`, a `count` and `isSelected`.
    QVariantList chips() const;
    RowListModel* rows() { return &rows_; }
    /// Empty for none, as are the others.
    QString placeholder() const;
    QString firstNote() const;
    QString secondNote() const;

    Q_INVOKABLE void chooseSource(const QString& source);
    Q_INVOKABLE void chooseRange(const QString& range);
    /// Empty for all.
    Q_INVOKABLE void chooseCategory(const QString& category);
    /// What the menu of a row lists; `value` is empty for going back to what is suggested.
    Q_INVOKABLE QVariantList categoryEntries(const QVariantMap& row) const;
    Q_INVOKABLE void assign(const QString& bundleIdentifier, const QString& category);

  signals:
    void contentChanged();
    void chipsChanged();

  private:
    void refresh();
    void showRows();

    UsageDetail detail_;
    UsageDetailContent content_;
    RowListModel rows_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
