#include "ui/SettingsWindowView/EnforcementPane.hpp"

#include "core/EnforcementLevel.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

void addSnoozing(PaneContent& pane, const Preferences& preferences) {
    pane.addRows(
        "Snoozing",
        {pillsRow(preferences,
                  {"snoozeDurationSeconds", "Menu bar snooze button",
                   "The reminder and the break screen offer +1, +3 and +5 directly"},
                  PillsEmphasis::accent),
         pillsRow(preferences, {"snoozesPerDay", "Snoozes allowed per day", "Resets at local midnight"}),
         pillsRow(preferences,
                  {"snoozesPerBreak", "Snoozes allowed per break", "Counted again for each new break"})});
}

void addSkipping(PaneContent& pane, const Preferences& preferences) {
    pane.addRows("Skipping",
                 {toggleRow(preferences, {"showSkipButton", "Show the skip button on the break screen",
                                          "The enforcement level still decides when it appears"}),
                  pillsRow(preferences, {"advanceSkipsPerDay", "Advance skips allowed per day",
                                         "Skipping the next break before it arrives"}),
                  toggleRow(preferences, {"allowEndBreakEarly", "Let me end a break early if I'm done",
                                          "Counts as completed, not skipped — only near the end"}),
                  pillsRow(preferences,
                           {"doubleEscapeAction", "Pressing Escape twice", "One press is always ignored"})});
}

} // namespace

PaneContent EnforcementPane::content(const Preferences& preferences) {
    PaneContent pane{"Enforcement",
                     "How easily a break can be dismissed, and how many ways out you get in a day."};
    pane.addCards(PaneBlock::Kind::cards, cards(preferences, StoredEnumeration<EnforcementLevel>::key,
                                                {"Skip any time", "Skip after a pause", "No skips allowed"}));
    if (current<EnforcementLevel>(preferences) == EnforcementLevel::hardcore) {
        pane.addCallout("No way out", "Breaks cannot be skipped at all. Snoozes and Escape still apply if "
                                      "you allow them below.");
    }
    addSnoozing(pane, preferences);
    addSkipping(pane, preferences);
    pane.addRows("At break start",
                 {toggleRow(preferences, {"lockOnBreakStart", "Lock my Mac when a break starts",
                                          "You'll need your password to get back in"})});
    pane.addText(PaneBlock::Kind::footnote, "Quotas are counted per local day and are not kept as history.");
    return pane;
}

} // namespace kestrelfen
