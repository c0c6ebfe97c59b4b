#pragma once

#include "ui/AppListEditor/AppListEditor.hpp"
#include "ui/EngineFollower.hpp"
#include "ui/KeyedListModel.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the list of applications of one kind of smart pause and forwards its clicks. Main thread only.
class AppListModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString sentence READ sentence CONSTANT)
    Q_PROPERTY(kestrelfen::KeyedListModel* ids READ ids CONSTANT)
    Q_PROPERTY(kestrelfen::KeyedListModel* runningChoices READ runningChoices CONSTANT)

  public:
    AppListModel(const Platform& platform, SmartPauseKind kind);

    QString title() const;
    QString sentence() const;
    /// Each has a `bundleID` and a `name`.
    KeyedListModel* ids() { return &ids_; }
    KeyedListModel* runningChoices() { return &runningChoices_; }

    Q_INVOKABLE void add(const QString& bundleID) { editor_.add(bundleID.toStdString()); }
    Q_INVOKABLE void remove(const QString& bundleID) { editor_.remove(bundleID.toStdString()); }
    Q_INVOKABLE void restoreDefaults() { editor_.restoreDefaults(); }

  private:
    void refresh();

    AppListEditor editor_;
    KeyedListModel ids_;
    KeyedListModel runningChoices_;
    EngineFollower follower_;
};

} // namespace kestrelfen
