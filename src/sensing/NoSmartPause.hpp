#pragma once

#include "core/SmartPause.hpp"

namespace kestrelfen {

/// A smart pause monitor for a program that watches nothing: it finds nothing and has always settled.
class NoSmartPause final : public SmartPause {
  public:
    std::optional<SmartPauseKind> sample(Date) override { return std::nullopt; }
    bool hasSettled(Date) const override { return true; }
};

} // namespace kestrelfen
