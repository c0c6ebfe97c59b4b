#include "screentime/DisplayLocator.hpp"

#include "platform/ports/WindowList.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::int64_t normalLayer = 0;

struct Point {
    double x;
    double y;
};

Point centre(const ScreenRect& rect) {
    return {rect.x + rect.width / 2.0, rect.y + rect.height / 2.0};
}

bool isEmpty(const ScreenRect& rect) {
    return rect.width <= 0 || rect.height <= 0;
}

bool isWithin(double value, double start, double length) {
    return value >= start && value < start + length;
}

bool contains(const ScreenRect& rect, Point point) {
    return isWithin(point.x, rect.x, rect.width) && isWithin(point.y, rect.y, rect.height);
}

bool isNormalWindow(const ScreenWindow& window, std::int32_t processIdentifier) {
    return window.ownerProcess == processIdentifier && window.layer == normalLayer && window.bounds &&
           !isEmpty(*window.bounds);
}

std::optional<std::int64_t> displayContaining(Point point, const std::vector<Display>& displays) {
    const auto found = std::find_if(displays.begin(), displays.end(),
                                    [&](const Display& display) { return contains(display.frame, point); });
    return found == displays.end() ? std::nullopt : std::optional(found->number);
}

} // namespace

std::int64_t DisplayLocator::displayID(std::int32_t processIdentifier, Date now) {
    const bool isFresh = cached_ && cached_->processIdentifier == processIdentifier &&
                         now - cached_->resolvedAt < cacheLifetime;
    if (!isFresh) {
        cached_ = {processIdentifier, resolveDisplayID(processIdentifier), now};
    }
    return cached_->displayID;
}

std::int64_t DisplayLocator::resolveDisplayID(std::int32_t processIdentifier) const {
    const auto windows = windowList_.onScreen();
    if (!windows) {
        return 0;
    }
    const std::vector<Display> displays = displays_.all();
    for (const ScreenWindow& window : *windows) {
        if (!isNormalWindow(window, processIdentifier)) {
            continue;
        }
        if (const auto number = displayContaining(centre(*window.bounds), displays)) {
            return *number;
        }
    }
    return 0;
}

} // namespace kestrelfen
