#pragma once

#include "platform/linux/BusService.hpp"
#include "platform/linux/MergedFact.hpp"

namespace kestrelfen {

/// Whether the machine is about to sleep or asleep, by login1. Main thread only; it never waits.
class Login1Sleep {
  public:
    /// The source outlives this.
    Login1Sleep(BusLink& systemBus, MergedFact::Source& isAsleep);

    bool isKnown() const { return service_.isOwned(); }

  private:
    void look();
    void hear(const QDBusMessage& signal);

    MergedFact::Source& isAsleep_;
    BusService service_;
};

} // namespace kestrelfen
