#pragma once

#include "core/SmartPause.hpp"

#include <vector>

namespace kestrelfen {

/// A smart pause monitor that finds what it is told, and keeps the dates of its samples.
class FakeSmartPause final : public SmartPause {
  public:
    std::optional<SmartPauseKind> found;
    bool settled = false;
    std::vector<Date> samples;

    std::optional<SmartPauseKind> sample(Date now) override {
        samples.push_back(now);
        return found;
    }

    bool hasSettled(Date) const override { return settled; }
};

} // namespace kestrelfen
