#include "shell/desktop/PopoverPlacement.hpp"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr int margin = 6;

QRect physicalFrame(const QScreen& screen) {
    return {screen.geometry().topLeft(),
            (QSizeF(screen.geometry().size()) * screen.devicePixelRatio()).toSize()};
}

/// Qt keeps the place of a screen's corner and divides what lies within by its ratio.
QPoint logicalPoint(const QPoint& physical, const QScreen& screen) {
    const QPoint origin = screen.geometry().topLeft();
    return origin + (QPointF(physical - origin) / screen.devicePixelRatio()).toPoint();
}

QRect logicalRect(const QRect& physical, const QScreen& screen) {
    return {logicalPoint(physical.topLeft(), screen),
            (QSizeF(physical.size()) / screen.devicePixelRatio()).toSize()};
}

const QScreen& screenOf(const std::optional<QPoint>& item) {
    for (const QScreen* const screen : QGuiApplication::screens()) {
        if (item && physicalFrame(*screen).contains(*item)) {
            return *screen;
        }
    }
    const QScreen* const pointed = item ? nullptr : QGuiApplication::screenAt(QCursor::pos());
    return pointed ? *pointed : *QGuiApplication::primaryScreen();
}

/// A panel between two displays, one above the other, reserves all of the one that lies beyond it.
bool isThin(const QRect& strip, const QRect& frame) {
    return 2 * strip.width() <= frame.width() || 2 * strip.height() <= frame.height();
}

/// The strips that lie on `screen`, in its logical coordinates.
std::vector<PanelStrip> stripsOn(const QScreen& screen, const std::vector<PanelStrip>& strips) {
    std::vector<PanelStrip> found;
    for (const auto& [edge, frame] : strips) {
        const QRect shared = physicalFrame(screen).intersected({frame.x, frame.y, frame.width, frame.height});
        if (!shared.isEmpty() && isThin(shared, physicalFrame(screen))) {
            const QRect rect = logicalRect(shared, screen);
            found.push_back({edge, {rect.x(), rect.y(), rect.width(), rect.height()}});
        }
    }
    return found;
}

int within(int low, int value, int high) {
    return std::max(low, std::min(value, high));
}

} // namespace

PopoverSurroundings PopoverSurroundings::about(const std::optional<QPoint>& item,
                                               const std::vector<PanelStrip>& panels) {
    const QScreen& screen = screenOf(item);
    const QRect free = freeOfPanels(screen.geometry(), stripsOn(screen, panels)) & screen.availableGeometry();
    return {free, item ? logicalPoint(*item, screen) : free.topRight()};
}

QPoint popoverPosition(QSize size, const PopoverSurroundings& surroundings) {
    const auto& [free, item] = surroundings;
    const bool isBelow = item.y() < free.center().y();
    const int y = isBelow ? item.y() + margin : item.y() - size.height() - margin;
    return {
        within(free.left() + margin, item.x() - size.width() / 2, free.right() + 1 - size.width() - margin),
        within(free.top() + margin, y, free.bottom() + 1 - size.height() - margin)};
}

QRect freeOfPanels(const QRect& screen, const std::vector<PanelStrip>& strips) {
    QRect free = screen;
    for (const auto& [edge, frame] : strips) {
        switch (edge) {
        case PanelStrip::Edge::left:
            free.setLeft(std::max(free.left(), frame.x + frame.width));
            break;
        case PanelStrip::Edge::right:
            free.setRight(std::min(free.right(), frame.x - 1));
            break;
        case PanelStrip::Edge::top:
            free.setTop(std::max(free.top(), frame.y + frame.height));
            break;
        case PanelStrip::Edge::bottom:
            free.setBottom(std::min(free.bottom(), frame.y - 1));
            break;
        }
    }
    return free;
}

} // namespace kestrelfen
