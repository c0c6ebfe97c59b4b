#pragma once

#include "platform/linux/StartableService.hpp"
#include "platform/ports/Notifier.hpp"

#include <QDBusConnection>

namespace kestrelfen {

/// The desktop's notification daemon. Main thread only; it never waits for the daemon's answer.
class DBusNotifier final : public Notifier {
  public:
    /// It posts on `sessionBus`, and learns by the link, which outlives it, who is there to show it.
    DBusNotifier(const QDBusConnection& sessionBus, BusLink& link);

    void post(const Notification& notification) override;
    bool isAvailable() const override { return daemon_.isReachable(); }

  private:
    QDBusConnection bus_;
    StartableService daemon_;
};

} // namespace kestrelfen
