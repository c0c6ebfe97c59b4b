#pragma once

#include "base/Observable.hpp"
#include "platform/linux/BusLink.hpp"

#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <cstdint>
#include <map>
#include <memory>

namespace kestrelfen {

/// The bus on which programs tell what they show. It is joined only when there is something to ask, and never
/// waited for. Main thread only; the session's bus outlives it.
class AccessibilityBus final : public QObject {
    Q_OBJECT

  public:
    explicit AccessibilityBus(BusLink& sessionBus);

    bool isConnected() const { return link_ && link_->isConnected(); }

    /// Hears of every change of `isConnected`.
    [[nodiscard]] Subscription observe(std::function<void()> listener) {
        return observers_.add(std::move(listener));
    }

    /// Begins to join the bus. Nothing happens when that has happened already.
    void open();

    /// Leaves it, and forgets who is there.
    void close();

    /// As with any bus: nothing happens while it is not joined.
    void ask(const QDBusMessage& question, QObject* asker, BusLink::Answer take);

    /// The process behind each connection, where it has been found out: a connection's name is never given
    /// to another.
    std::map<QString, std::uint32_t>& processes() { return processes_; }

  private:
    void take(const QString& address);
    void linkChanged();

    BusLink& sessionBus_;
    Subscription sessionSubscription_;
    Observers observers_;
    std::unique_ptr<BusLink> link_;
    Subscription linkSubscription_;
    QString address_;
    bool isAsking_ = false;
    std::map<QString, std::uint32_t> processes_;
};

} // namespace kestrelfen
