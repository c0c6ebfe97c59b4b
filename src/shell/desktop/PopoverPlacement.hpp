#pragma once

#include "platform/ports/Panels.hpp"

#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

namespace kestrelfen {

/// What a popover is placed by, in one screen's logical coordinates.
struct PopoverSurroundings {
    /// What panels leave free.
    QRect free;
    /// Where the item of the popover is.
    QPoint item;

    /// About the screen with the physical point `item`, or else the pointer's, in the corner where panels
    /// have their items.
    static PopoverSurroundings about(const std::optional<QPoint>& item,
                                     const std::vector<PanelStrip>& panels);
};

/// The top left of a card of `size`: beside its item, towards the screen's middle, on no panel.
QPoint popoverPosition(QSize size, const PopoverSurroundings& surroundings);

/// What `strips`, in the same coordinates, leave of `screen`.
QRect freeOfPanels(const QRect& screen, const std::vector<PanelStrip>& strips);

} // namespace kestrelfen
