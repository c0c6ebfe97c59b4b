#include "platform/fake/FakeWindowList.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

ScreenRect middle(const ScreenRect& frame) {
    return {frame.x + frame.width / 4, frame.y + frame.height / 4, frame.width / 2, frame.height / 2};
}

} // namespace

std::optional<std::vector<ScreenWindow>> FakeWindowList::onScreen() const {
    if (!isAvailable_) {
        return std::nullopt;
    }
    const std::vector<Display> displays = displays_.all();
    const auto frontmost = applications_.frontmost();
    std::vector<ScreenWindow> windows;
    for (const auto& [application, number] : applications_.started()) {
        const auto isIts = [wanted = number](const Display& display) { return display.number == wanted; };
        const auto display = std::find_if(displays.begin(), displays.end(), isIts);
        if (display != displays.end()) {
            windows.insert(windows.begin(), {application.processIdentifier, 0, middle(display->frame)});
        }
    }
    std::stable_partition(windows.begin(), windows.end(), [&](const ScreenWindow& window) {
        return frontmost && window.ownerProcess == frontmost->processIdentifier;
    });
    return windows;
}

} // namespace kestrelfen
