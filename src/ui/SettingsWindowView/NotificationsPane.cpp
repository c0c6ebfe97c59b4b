#include "ui/SettingsWindowView/NotificationsPane.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "ui/SettingsWindowView/HistoryDataActions.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

std::string warningPreview(const BreakEngine& engine) {
    return translated("Break in %1 seconds — look 20 feet away.",
                      {Formatters::wholeSeconds(engine.config().preBreakWarningLead)});
}

std::string summaryPreview(const BreakEngine& engine) {
    return translated(
        "%1 breaks, %2 skipped, honest screen time for the day.",
        {std::to_string(engine.breaksCompletedToday()), std::to_string(engine.breaksSkippedToday())});
}

std::vector<PaneRow> rowsOf(const Preferences& preferences) {
    return {
        toggleRow(preferences, {"warningHUDEnabled", translated("Warning HUD before a break"),
                                translated("Dismissible without cancelling the break")}),
        toggleRow(preferences, {"dailySummaryEnabled", translated("Daily summary at 18:00"),
                                translated("Breaks taken, skipped, honest screen time")}),
        toggleRow(preferences, {"soundOnBreakStart", translated("Sound on break start"),
                                translated("Silent while Do Not Disturb is on")}),
        pillsRow(preferences, {"historyRetentionDays", translated("Keep history for"),
                               translated("Pruning logs the row count it removed")}),
    };
}

void addMessage(PaneContent& pane, const std::optional<std::string>& message) {
    if (message) {
        pane.addText(PaneBlock::Kind::message, *message);
    }
}

} // namespace

PaneContent NotificationsPane::content(const BreakEngine& engine, const Preferences& preferences,
                                       const HistoryDataActions& data) {
    PaneContent pane{
        translated("Notifications & Data"),
        translated("What Kestrelfen is allowed to say, and how long it keeps what it recorded.")};
    pane.blocks.push_back({.kind = PaneBlock::Kind::previews,
                           .eyebrow = translated("Preview"),
                           .previews = {{translated("now"), warningPreview(engine), true},
                                        {"18:00", summaryPreview(engine), false}}});
    pane.addRows({}, rowsOf(preferences));
    pane.blocks.push_back({.kind = PaneBlock::Kind::buttons,
                           .buttons = {{translated("Export History as CSV…"), data.areAvailable()},
                                       {translated("Delete All History…"), data.areAvailable()}}});
    addMessage(pane, data.exportMessage());
    addMessage(pane, data.deletionMessage());
    return pane;
}

} // namespace kestrelfen
