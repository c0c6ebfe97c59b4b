#pragma once

#include "ui/AppListEditor/AppListContent.hpp"
#include "ui/ChangeFollower.hpp"
#include "ui/KeyedListModel.hpp"

#include <QObject>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the list of applications of one kind of smart pause and forwards its clicks. Main thread only.
class AppListModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString sentence READ sentence CONSTANT)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(kestrelfen::KeyedListModel* ids READ ids CONSTANT)
    Q_PROPERTY(kestrelfen::KeyedListModel* runningChoices READ runningChoices CONSTANT)

  public:
    AppListModel(const Platform& platform, SmartPauseKind kind);

    QString title() const;
    QString sentence() const;
    /// `empty`, `addHeading`, `nothingToAdd`, `restore` and `done`.
    QVariantMap texts() const;
    /// Each has a `bundleID`, a `name` and a `spokenAction`.
    KeyedListModel* ids() { return &ids_; }
    KeyedListModel* runningChoices() { return &runningChoices_; }

    /// Looks again which programs run: the person comes back to the window.
    Q_INVOKABLE void reload() { editor_.reload(); }
    Q_INVOKABLE void add(const QString& bundleID) { editor_.add(bundleID.toStdString()); }
    Q_INVOKABLE void remove(const QString& bundleID) { editor_.remove(bundleID.toStdString()); }
    Q_INVOKABLE void restoreDefaults() { editor_.restoreDefaults(); }

  private:
    void refresh();

    AppListEditor editor_;
    KeyedListModel ids_;
    KeyedListModel runningChoices_;
    ChangeFollower follower_;
};

} // namespace kestrelfen
