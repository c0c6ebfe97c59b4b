#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

class QDBusMessage;

namespace kestrelfen {

/// Puts an item on the list of the session's StatusNotifierWatcher, again for every watcher that appears,
/// and knows whether a host looks at that list. Main thread only; it never waits for the bus.
class StatusNotifierRegistration final : public QObject {
    Q_OBJECT

  public:
    /// `changed` hears of every change of `isAccepted`.
    StatusNotifierRegistration(const QDBusConnection& sessionBus, std::function<void()> changed);

    /// The item at its usual path on this connection.
    void start();

    /// A watcher has the item on its list and a host shows what is on it.
    bool isAccepted() const { return isRegistered_ && hasHost_; }

  private:
    Q_SLOT void watcherOwnerChanged(const QString& name, const QString& oldOwner, const QString& newOwner);
    Q_SLOT void askForHost();
    void followWatcher();
    void registerItem();
    void set(bool isRegistered, bool hasHost);
    void whenAnswered(const QDBusMessage& question, std::function<void(const QDBusMessage&)> take);

    QDBusConnection bus_;
    std::function<void()> changed_;
    bool isRegistered_ = false;
    bool hasHost_ = false;
    /// Counts the watchers, so that an answer of one that has gone is not taken for its successor's.
    int watcherNumber_ = 0;
};

} // namespace kestrelfen
