#pragma once

#include "base/Observable.hpp"
#include "platform/ports/SystemSignals.hpp"

#include <array>

namespace kestrelfen {

/// System signals by hand.
class FakeSystemSignals final : public SystemSignals {
  public:
    std::unique_ptr<Observation> observe(SystemSignal signal, std::function<void()> deliver) override;

    void send(SystemSignal signal) const { observers_[static_cast<std::size_t>(signal)].notify(); }

  private:
    class Observing;

    std::array<Observers, EnumerationTable<SystemSignal>::rows.size()> observers_;
};

} // namespace kestrelfen
