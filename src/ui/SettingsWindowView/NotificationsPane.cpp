#include "ui/SettingsWindowView/NotificationsPane.hpp"

#include "core/BreakEngine.hpp"
#include "core/Formatters.hpp"
#include "ui/SettingsWindowView/HistoryDataActions.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

std::string warningPreview(const BreakEngine& engine) {
    return "Break in " + Formatters::wholeSeconds(engine.config().preBreakWarningLead) +
           " seconds — look 20 feet away.";
}

std::string summaryPreview(const BreakEngine& engine) {
    return std::to_string(engine.breaksCompletedToday()) + " breaks, " +
           std::to_string(engine.breaksSkippedToday()) + " skipped, honest screen time for the day.";
}

std::vector<PaneRow> rowsOf(const Preferences& preferences) {
    return {
        toggleRow(preferences, {"warningHUDEnabled", "Warning HUD before a break",
                                "Dismissible without cancelling the break"}),
        toggleRow(preferences, {"dailySummaryEnabled", "Daily summary at 18:00",
                                "Breaks taken, skipped, honest screen time"}),
        toggleRow(preferences,
                  {"soundOnBreakStart", "Sound on break start", "Silent while Do Not Disturb is on"}),
        pillsRow(preferences,
                 {"historyRetentionDays", "Keep history for", "Pruning logs the row count it removed"}),
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
    PaneContent pane{"Notifications & Data",
                     "What Kestrelfen is allowed to say, and how long it keeps what it recorded."};
    pane.blocks.push_back(
        {.kind = PaneBlock::Kind::previews,
         .eyebrow = "Preview",
         .previews = {{"now", warningPreview(engine), true}, {"18:00", summaryPreview(engine), false}}});
    pane.addRows({}, rowsOf(preferences));
    pane.blocks.push_back({.kind = PaneBlock::Kind::buttons,
                           .buttons = {{"Export History as CSV…", data.areAvailable()},
                                       {"Delete All History…", data.areAvailable()}}});
    addMessage(pane, data.exportMessage());
    addMessage(pane, data.deletionMessage());
    return pane;
}

} // namespace kestrelfen
