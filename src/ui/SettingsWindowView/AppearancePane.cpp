#include "ui/SettingsWindowView/AppearancePane.hpp"

#include "core/AppAppearance.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

PaneContent AppearancePane::content(const Preferences& preferences) {
    PaneContent pane{"Appearance", "Kestrelfen can follow the system or stay in one palette."};
    std::vector<PaneRow> modes = cards(
        preferences, StoredEnumeration<AppAppearance>::key,
        {"Follows the macOS appearance setting", "Always the light palette", "Always the dark palette"});
    for (PaneRow& mode : modes) {
        std::get<CardState>(mode.control).eyebrow = "Mode";
    }
    pane.addCards(PaneBlock::Kind::modeCards, std::move(modes));
    pane.addText(PaneBlock::Kind::text,
                 "Applied to the whole app, so the break overlays and the menu bar popover follow it too.");
    return pane;
}

} // namespace kestrelfen
