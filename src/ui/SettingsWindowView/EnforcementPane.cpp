#include "ui/SettingsWindowView/EnforcementPane.hpp"

#include "base/Translated.hpp"
#include "core/EnforcementLevel.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

void addSnoozing(PaneContent& pane, const Preferences& preferences) {
    pane.addRows(translated("Snoozing"),
                 {pillsRow(preferences,
                           {"snoozeDurationSeconds", translated("Menu bar snooze button"),
                            translated("The reminder and the break screen offer +1, +3 and +5 directly")},
                           PillsEmphasis::accent),
                  pillsRow(preferences, {"snoozesPerDay", translated("Snoozes allowed per day"),
                                         translated("Resets at local midnight")}),
                  pillsRow(preferences, {"snoozesPerBreak", translated("Snoozes allowed per break"),
                                         translated("Counted again for each new break")})});
}

void addSkipping(PaneContent& pane, const Preferences& preferences) {
    pane.addRows(
        translated("Skipping"),
        {toggleRow(preferences, {"showSkipButton", translated("Show the skip button on the break screen"),
                                 translated("The enforcement level still decides when it appears")}),
         pillsRow(preferences, {"advanceSkipsPerDay", translated("Advance skips allowed per day"),
                                translated("Skipping the next break before it arrives")}),
         toggleRow(preferences, {"allowEndBreakEarly", translated("Let me end a break early if I'm done"),
                                 translated("Counts as completed, not skipped — only near the end")}),
         pillsRow(preferences, {"doubleEscapeAction", translated("Pressing Escape twice"),
                                translated("One press is always ignored")})});
}

} // namespace

PaneContent EnforcementPane::content(const Preferences& preferences) {
    PaneContent pane{
        translated("Enforcement"),
        translated("How easily a break can be dismissed, and how many ways out you get in a day.")};
    pane.addCards(PaneBlock::Kind::cards,
                  cards(preferences, StoredEnumeration<EnforcementLevel>::key,
                        {translated("Skip any time"), translated("Skip after a pause"),
                         translated("No skips allowed")}));
    if (current<EnforcementLevel>(preferences) == EnforcementLevel::hardcore) {
        pane.addCallout(translated("No way out"),
                        translated("Breaks cannot be skipped at all. Snoozes and Escape still apply if "
                                   "you allow them below."));
    }
    addSnoozing(pane, preferences);
    addSkipping(pane, preferences);
    pane.addRows(translated("At break start"),
                 {toggleRow(preferences, {"lockOnBreakStart", translated("Lock my Mac when a break starts"),
                                          translated("You'll need your password to get back in")})});
    pane.addText(PaneBlock::Kind::footnote,
                 translated("Quotas are counted per local day and are not kept as history."));
    return pane;
}

} // namespace kestrelfen
