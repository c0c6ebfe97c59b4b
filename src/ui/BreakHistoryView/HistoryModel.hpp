#pragma once

#include "ui/BreakHistoryView/BreakHistoryContent.hpp"
#include "ui/BreakHistoryView/HistoryList.hpp"
#include "ui/ChangeFollower.hpp"

#include <QAbstractListModel>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the history's table while it is shown: its rows are written out only as they come into sight.
/// Main thread only.
class HistoryModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QVariantList ranges READ ranges CONSTANT)
    Q_PROPERTY(QString range READ range NOTIFY contentChanged)
    Q_PROPERTY(QVariantList columns READ columns CONSTANT)
    Q_PROPERTY(QString summary READ summary NOTIFY contentChanged)
    Q_PROPERTY(QString emptyLine READ emptyLine NOTIFY contentChanged)
    Q_PROPERTY(QString footnote READ footnote CONSTANT)

  public:
    HistoryModel(const Platform& platform, BreakEngine& engine, KestrelfenStore* store);

    /// Each has a `value` and a `label`.
    QVariantList ranges() const;
    QString range() const;
    /// Each has a `header` and a `width`, 0 for the one that takes what is left.
    QVariantList columns() const;
    QString summary() const { return QString::fromStdString(content_.summary); }
    /// Empty where there are rows.
    QString emptyLine() const;
    QString footnote() const;

    /// Loads, and follows what changes, until it is hidden.
    Q_INVOKABLE void show();
    Q_INVOKABLE void hide() { isShown_ = false; }
    Q_INVOKABLE void chooseRange(const QString& range);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

  signals:
    void contentChanged();

  private:
    enum Role { rowRole = Qt::UserRole };

    void follow();
    void refresh();

    const Platform platform_;
    HistoryList list_;
    std::vector<HistoryEntry> entries_;
    BreakHistoryContent content_;
    bool isShown_ = false;
    ChangeFollower follower_;
};

} // namespace kestrelfen
