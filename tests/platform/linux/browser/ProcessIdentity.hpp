#pragma once

#include "platform/linux/ProgramIdentity.hpp"

#include <map>

namespace kestrelfen {

/// Knows the products of some processes.
class ProcessIdentity final : public ProgramIdentity {
  public:
    std::map<std::int32_t, std::string> products;

    std::optional<std::string> bundleIdentifier(const ProgramClues& clues) override {
        const auto found = products.find(clues.processIdentifier.value_or(0));
        return found == products.end() ? std::nullopt : std::optional(found->second);
    }
};

} // namespace kestrelfen
