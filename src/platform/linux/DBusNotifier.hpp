#pragma once

#include "platform/ports/Notifier.hpp"

#include <QDBusConnection>

namespace kestrelfen {

/// The desktop's notification daemon. Main thread only; it never waits for the daemon's answer.
class DBusNotifier final : public Notifier {
  public:
    explicit DBusNotifier(const QDBusConnection& sessionBus) : bus_(sessionBus) {}

    void post(const Notification& notification) override;

  private:
    QDBusConnection bus_;
};

} // namespace kestrelfen
