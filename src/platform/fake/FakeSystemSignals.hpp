#pragma once

#include "base/Observable.hpp"
#include "platform/ports/SystemSignals.hpp"

#include <array>

namespace kestrelfen {

/// System signals by hand. At first this session tells all of them.
class FakeSystemSignals final : public SystemSignals {
  public:
    std::unique_ptr<Observation> observe(SystemSignal signal, std::function<void()> deliver) override;
    Capabilities capabilities() const override { return capabilities_; }

    /// They are sent all the same.
    void setCapabilities(const Capabilities& capabilities) { capabilities_ = capabilities; }

    void send(SystemSignal signal) const { observers_[static_cast<std::size_t>(signal)].notify(); }

  private:
    class Observing;

    Capabilities capabilities_{true, true, true, true};
    std::array<Observers, EnumerationTable<SystemSignal>::rows.size()> observers_;
};

} // namespace kestrelfen
