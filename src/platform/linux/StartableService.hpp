#pragma once

#include "platform/linux/BusService.hpp"

#include <QObject>

namespace kestrelfen {

/// Whether a service of a bus answers whoever asks it: because somebody owns its name, or because the bus
/// would start it. It is never started to find out. Main thread only; it never waits.
class StartableService final : public QObject {
    Q_OBJECT

  public:
    StartableService(BusLink& bus, const QString& name);

    bool isReachable() const { return service_.isOwned() || isStartable_; }

  private:
    void look();

    BusLink& bus_;
    BusService service_;
    bool isStartable_ = false;
    Subscription subscription_;
};

} // namespace kestrelfen
