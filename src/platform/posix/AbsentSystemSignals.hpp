#pragma once

#include "platform/ports/SystemSignals.hpp"

namespace kestrelfen {

/// System signals of a system that is not listened to: none ever comes.
class AbsentSystemSignals final : public SystemSignals {
  public:
    std::unique_ptr<Observation> observe(SystemSignal /*signal*/,
                                         std::function<void()> /*deliver*/) override {
        return std::make_unique<Observation>();
    }
    Capabilities capabilities() const override { return {}; }
};

} // namespace kestrelfen
