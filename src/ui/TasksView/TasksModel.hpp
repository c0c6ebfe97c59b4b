#pragma once

#include "ui/ChangeFollower.hpp"
#include "ui/RowListModel.hpp"
#include "ui/TasksView/TaskList.hpp"
#include "ui/TasksView/TasksContent.hpp"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// Publishes the list of tasks while it is shown and forwards its clicks. Main thread only.
class TasksModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(QString newTitle READ newTitle WRITE setNewTitle NOTIFY contentChanged)
    Q_PROPERTY(kestrelfen::RowListModel* rows READ rows CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY contentChanged)
    Q_PROPERTY(QString doneText READ doneText NOTIFY contentChanged)
    Q_PROPERTY(bool canClearCompleted READ canClearCompleted NOTIFY contentChanged)
    Q_PROPERTY(QString deleteQuestion READ deleteQuestion NOTIFY contentChanged)
    Q_PROPERTY(QString clearQuestion READ clearQuestion NOTIFY contentChanged)

  public:
    TasksModel(const Platform& platform, BreakEngine& engine, KestrelfenStore* store);

    /// What never changes: `prompt`, `emptyTitle`, `emptyText`, `clear`, `purpose`, `grip`, `badge`,
    /// `message`, `confirm` and `cancel`.
    QVariantMap texts() const;
    QString newTitle() const { return QString::fromStdString(list_.newTitle()); }
    void setNewTitle(const QString& title) { list_.setNewTitle(title.toStdString()); }
    RowListModel* rows() { return &rows_; }
    bool isEmpty() const { return content_.isEmpty; }
    QString doneText() const { return QString::fromStdString(content_.doneText); }
    bool canClearCompleted() const { return content_.canClearCompleted; }
    /// Empty while nothing is asked.
    QString deleteQuestion() const;
    QString clearQuestion() const;

    /// Loads, and follows what changes, until it is hidden.
    Q_INVOKABLE void show();
    Q_INVOKABLE void hide() { isShown_ = false; }

    Q_INVOKABLE void add() { list_.add(); }
    Q_INVOKABLE void cancelComposing() { list_.cancelComposing(); }
    Q_INVOKABLE void activate(qint64 task);
    Q_INVOKABLE void toggle(qint64 task);
    Q_INVOKABLE void askDeletion(qint64 task);
    Q_INVOKABLE void askClearing() { list_.setConfirmClearCompleted(true); }
    Q_INVOKABLE void confirmDeletion() { list_.confirmDeletion(); }
    Q_INVOKABLE void confirmClearing() { list_.confirmClearing(); }
    Q_INVOKABLE void cancelQuestion();

    /// What the menu of a row lists, and what one of these does.
    Q_INVOKABLE QVariantList menuEntries(const QVariantMap& row) const;
    Q_INVOKABLE void take(const QString& entry, qint64 task);

  signals:
    void contentChanged();

  private:
    using Action = void (TaskList::*)(const TaskSummary&);

    void follow();
    void refresh();
    void showRows();
    void withTask(qint64 id, Action action);

    BreakEngine& engine_;
    TaskList list_;
    TasksContent content_;
    RowListModel rows_;
    std::int64_t loadedAt_ = 0;
    bool isShown_ = false;
    ChangeFollower follower_;
};

} // namespace kestrelfen
