#pragma once

#include "platform/linux/BusProperties.hpp"
#include "platform/linux/BusService.hpp"
#include "platform/linux/MergedFact.hpp"

namespace kestrelfen {

/// Whether GNOME's compositor has put the displays to sleep. Main thread only; it never waits.
class MutterDisplaySleep {
  public:
    /// The source outlives this.
    MutterDisplaySleep(BusLink& sessionBus, MergedFact::Source& isAsleep);

    bool isKnown() const { return isAsleep_.value().has_value(); }

  private:
    void look();
    void take(const QVariantMap& properties, BusProperties::Occasion occasion);

    MergedFact::Source& isAsleep_;
    BusService service_;
    BusProperties properties_;
};

} // namespace kestrelfen
