#pragma once

#include "platform/linux/ProgramLauncher.hpp"
#include "platform/linux/WaylandToplevels.hpp"
#include "platform/ports/Applications.hpp"

namespace kestrelfen {

/// The programs that have windows in a session of a wlroots compositor, by their application ids. The
/// compositor tells no processes, so numbers below 0 stand for them. Main thread only.
class WaylandApplications final : public Applications {
  public:
    explicit WaylandApplications(const WaylandToplevels& toplevels)
        : toplevels_(toplevels), launcher_(toplevels.catalogue()) {}

    std::vector<RunningApplication> running() const override;
    std::optional<RunningApplication> frontmost() const override;
    bool isAvailable() const override { return toplevels_.isAvailable(); }
    bool isInstalled(std::string_view bundleIdentifier) const override;
    void launchInBackground(std::string_view bundleIdentifier, std::function<void()> completion) override;

  private:
    const WaylandToplevels& toplevels_;
    ProgramLauncher launcher_;
};

} // namespace kestrelfen
