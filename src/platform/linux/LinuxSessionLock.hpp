#pragma once

#include "platform/linux/BusLink.hpp"
#include "platform/linux/LinuxSystemSignals.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/SessionLock.hpp"

#include <QTimer>

#include <deque>
#include <functional>

namespace kestrelfen {

/// Locks through login1, and where nothing tells within a second that this locked, through the desktop's
/// screen saver. Main thread only; it never waits. The buses and the signals outlive it.
class LinuxSessionLock final : public SessionLock {
  public:
    LinuxSessionLock(const BusLink& systemBus, const BusLink& sessionBus, LinuxSystemSignals& systemSignals,
                     Log& log);

    SessionLockResult lock() override;
    bool isAvailable() const override { return !ways().empty(); }

  private:
    using Way = std::function<void(const BusLink::Answer&)>;

    std::deque<Way> ways() const;
    SessionLockResult whyNoWay() const;
    void tryNext();
    void checkAnswer(int attempt, const QDBusMessage& answer);
    void check();

    const BusLink& systemBus_;
    const BusLink& sessionBus_;
    LinuxSystemSignals& systemSignals_;
    Logger log_;
    std::deque<Way> waysLeft_;
    /// Counts the attempts, so that a late answer to an earlier one ends none.
    int attempt_ = 0;
    QTimer patience_;
};

} // namespace kestrelfen
