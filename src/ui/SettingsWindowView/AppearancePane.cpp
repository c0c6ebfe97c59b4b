#include "ui/SettingsWindowView/AppearancePane.hpp"

#include "base/Translated.hpp"
#include "core/AppAppearance.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

PaneContent AppearancePane::content(const Preferences& preferences) {
    PaneContent pane{translated("Appearance"),
                     translated("Kestrelfen can follow the system or stay in one palette.")};
    std::vector<PaneRow> modes =
        cards(preferences, StoredEnumeration<AppAppearance>::key,
              {translated("Follows the macOS appearance setting"), translated("Always the light palette"),
               translated("Always the dark palette")});
    for (PaneRow& mode : modes) {
        std::get<CardState>(mode.control).eyebrow = translated("Mode");
    }
    pane.addCards(PaneBlock::Kind::modeCards, std::move(modes));
    pane.addText(
        PaneBlock::Kind::text,
        translated(
            "Applied to the whole app, so the break overlays and the menu bar popover follow it too."));
    return pane;
}

} // namespace kestrelfen
