#pragma once

#include "platform/linux/ProgramIdentity.hpp"

#include <vector>

namespace kestrelfen {

/// Takes each program for the product that it says it is, and keeps what it was asked.
class ApplicationIdentity final : public ProgramIdentity {
  public:
    std::vector<ProgramClues> asked;
    bool knowsNone = false;

    std::optional<std::string> bundleIdentifier(const ProgramClues& clues) override {
        asked.push_back(clues);
        return knowsNone || clues.applicationId.empty() ? std::nullopt : std::optional(clues.applicationId);
    }
};

} // namespace kestrelfen
