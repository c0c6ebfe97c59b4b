#include "platform/linux/X11WindowList.hpp"

#include <QGuiApplication>
#include <QScreen>

namespace kestrelfen {

namespace {

constexpr std::int64_t normalLayer = 0;
constexpr std::int64_t specialLayer = 1;

/// Qt keeps the place of a screen's corner and divides what lies within by its ratio.
ScreenRect scaled(const ScreenRect& rect, const QScreen& screen) {
    const double ratio = screen.devicePixelRatio();
    const QPoint origin = screen.geometry().topLeft();
    const auto along = [ratio](int position, int from) {
        return from + static_cast<int>((position - from) / ratio);
    };
    return {along(rect.x, origin.x()), along(rect.y, origin.y()), static_cast<int>(rect.width / ratio),
            static_cast<int>(rect.height / ratio)};
}

QRect physicalFrame(const QScreen& screen) {
    return {screen.geometry().topLeft(),
            (QSizeF(screen.geometry().size()) * screen.devicePixelRatio()).toSize()};
}

/// In the coordinates in which Qt tells of the displays.
ScreenRect logical(const ScreenRect& rect) {
    const QPoint centre(rect.x + rect.width / 2, rect.y + rect.height / 2);
    for (const QScreen* const screen : QGuiApplication::screens()) {
        if (physicalFrame(*screen).contains(centre)) {
            return scaled(rect, *screen);
        }
    }
    return rect;
}

} // namespace

std::optional<std::vector<ScreenWindow>> X11WindowList::onScreen() const {
    if (!watch_.isAvailable()) {
        return std::nullopt;
    }
    std::vector<ScreenWindow> windows;
    for (const xcb_window_t number : watch_.stacking()) {
        const auto* const window = watch_.find(number);
        if (!window || !window->record.isShown || window->record.kind == X11WindowRecord::Kind::desktop) {
            continue;
        }
        const auto& record = window->record;
        windows.push_back({.ownerProcess = record.owner(),
                           .layer = record.kind == X11WindowRecord::Kind::normal ? normalLayer : specialLayer,
                           .bounds = record.bounds ? std::optional(logical(*record.bounds)) : std::nullopt});
    }
    return windows;
}

} // namespace kestrelfen
