#include "ui/SettingsWindowView/SmartPausePane.hpp"

#include "base/Translated.hpp"
#include "sensing/SmartPauseLists.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "ui/AppListEditor/SmartPauseWords.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

std::string captionOf(SmartPauseKind kind, const Preferences& preferences) {
    const auto count = std::ssize(SmartPauseLists::bundleIDs(kind, preferences));
    if (kind == SmartPauseKind::focusApps && count == 0) {
        return translated("Add the apps that mean you're heads-down");
    }
    return SmartPauseWords::of(kind).detection + " · " + translatedCount(count, "%1 app", "%1 apps");
}

PaneRow detectorRow(SmartPauseKind kind, const Preferences& preferences) {
    PaneRow row = toggleRow(preferences, {SmartPauseLists::enableKey(kind), SmartPauseWords::of(kind).title,
                                          captionOf(kind, preferences)});
    row.addButton(translated("Configure"), translated("Configure %1", {row.title}),
                  PaneRow::ButtonStyle::plain);
    return row;
}

} // namespace

std::string SmartPausePane::status(std::optional<SmartPauseKind> kind,
                                   const std::optional<std::string>& appName) {
    if (!kind) {
        return translated("Nothing detected right now");
    }
    const std::string title = SmartPauseWords::of(*kind).title;
    return appName ? translated("%1 detected — %2", {title, *appName}) : translated("%1 detected", {title});
}

PaneContent SmartPausePane::content(const Preferences& preferences, const SmartPauseMonitor& monitor) {
    PaneContent pane{translated("Smart Pause"),
                     translated("Holds the timer while you're on a call, watching something, capturing "
                                "the screen, or heads-down in an app you chose.")};
    pane.addText(PaneBlock::Kind::status, status(monitor.activeKind(), monitor.activeAppName()));
    pane.blocks.back().tint = monitor.activeKind() ? "accent" : "faint";
    if (!monitor.audioProbeSupported()) {
        pane.addCallout(translated("Reduced"),
                        translated("This Mac won't report per-app audio, so calls and video fall back to "
                                   "whichever app is frontmost."));
    }
    std::vector<PaneRow> rows;
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        rows.push_back(detectorRow(kind, preferences));
    }
    pane.addRows({}, std::move(rows));
    pane.addText(
        PaneBlock::Kind::footnote,
        translated("Detected from microphone and audio activity, running apps, and the frontmost app. No new "
                   "permissions, and nothing leaves your Mac."));
    return pane;
}

} // namespace kestrelfen
