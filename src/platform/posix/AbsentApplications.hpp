#pragma once

#include "platform/ports/Applications.hpp"

namespace kestrelfen {

/// The applications of a session that does not tell of them.
class AbsentApplications final : public Applications {
  public:
    std::vector<RunningApplication> running() const override { return {}; }
    std::optional<RunningApplication> frontmost() const override { return std::nullopt; }
    bool isAvailable() const override { return false; }
    bool isInstalled(std::string_view /*bundleIdentifier*/) const override { return false; }
    void launchInBackground(std::string_view /*bundleIdentifier*/,
                            std::function<void()> completion) override {
        completion();
    }
};

} // namespace kestrelfen
