#include "platform/linux/WaylandApplications.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

RunningApplication applicationOf(const WaylandToplevel& toplevel) {
    return {.bundleIdentifier = toplevel.program.bundleIdentifier,
            .localizedName = toplevel.program.localizedName,
            .processIdentifier = toplevel.processIdentifier};
}

} // namespace

std::vector<RunningApplication> WaylandApplications::running() const {
    std::vector<RunningApplication> applications;
    for (const WaylandToplevel* const toplevel : toplevels_.all()) {
        const bool known = std::any_of(applications.begin(), applications.end(), [&](const auto& each) {
            return each.processIdentifier == toplevel->processIdentifier;
        });
        if (!known) {
            applications.push_back(applicationOf(*toplevel));
        }
    }
    return applications;
}

std::optional<RunningApplication> WaylandApplications::frontmost() const {
    const WaylandToplevel* const active = toplevels_.active();
    return active ? std::optional(applicationOf(*active)) : std::nullopt;
}

bool WaylandApplications::isInstalled(std::string_view bundleIdentifier) const {
    return toplevels_.catalogue().isInstalled(bundleIdentifier);
}

void WaylandApplications::launchInBackground(std::string_view bundleIdentifier,
                                             std::function<void()> completion) {
    launcher_.launch(bundleIdentifier, std::move(completion));
}

} // namespace kestrelfen
