#include "platform/linux/WaylandWindowList.hpp"

namespace kestrelfen {

namespace {

constexpr std::int64_t normalLayer = 0;

} // namespace

std::optional<std::vector<ScreenWindow>> WaylandWindowList::onScreen() const {
    if (!toplevels_.isAvailable()) {
        return std::nullopt;
    }
    std::vector<ScreenWindow> windows;
    for (const WaylandToplevel* const toplevel : toplevels_.byLastActivation()) {
        const auto& facts = toplevel->facts();
        if (!facts.isMinimized && !facts.outputs.empty()) {
            windows.push_back({.ownerProcess = toplevel->processIdentifier,
                               .layer = normalLayer,
                               .bounds = toplevels_.displayOf(*toplevel)});
        }
    }
    return windows;
}

} // namespace kestrelfen
