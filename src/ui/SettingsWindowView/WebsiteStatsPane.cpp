#include "ui/SettingsWindowView/WebsiteStatsPane.hpp"

#include "base/Translated.hpp"
#include "ui/SettingsWindowView/WebsiteStats.hpp"

namespace kestrelfen {

namespace {

std::string captionOf(AutomationPermission permission) {
    switch (permission) {
    case AutomationPermission::granted:
        return translated("Allowed — reading the current domain");
    case AutomationPermission::denied:
        return translated("Denied in System Settings › Privacy & Security › Automation");
    case AutomationPermission::notDetermined:
        return translated("macOS will ask when you allow it");
    case AutomationPermission::notRunning:
        return translated("Closed — it will be opened so macOS can ask");
    case AutomationPermission::notInstalled:
        return translated("Not installed");
    }
    return {};
}

PaneRow rowOf(Browser browser, const WebsiteStats& stats) {
    const bool isDenied = stats.permission(browser) == AutomationPermission::denied;
    const bool isOn = stats.isOn(browser);
    PaneRow row{.key = std::string(settingsKey(browser)),
                .title = std::string(displayName(browser)),
                .caption = captionOf(stats.permission(browser)),
                .control = ToggleState{isOn},
                .isEnabled = !stats.isRequesting(),
                .captionTint = isDenied ? "amber" : "faint"};
    if (isOn && isDenied) {
        row.addButton(translated("Open Settings"), translated("Open Settings %1", {row.title}),
                      PaneRow::ButtonStyle::secondary);
    }
    return row;
}

PaneBlock disclosure() {
    return {.kind = PaneBlock::Kind::disclosure,
            .title = translated("What This Reads"),
            .text = translated(
                "Only the domain of the tab you're looking at — example.com, not the full address, the "
                "page title, or anything on the page. It is stored on this Mac and never sent anywhere. "
                "macOS asks you to approve each browser separately.")};
}

} // namespace

PaneContent WebsiteStatsPane::content(const WebsiteStats& stats) {
    PaneContent pane{translated("Website Stats"),
                     translated("Breaks screen time down by website, for the browsers you turn on here.")};
    pane.blocks.push_back(disclosure());
    std::vector<PaneRow> rows;
    for (const Browser browser : stats.installed()) {
        rows.push_back(rowOf(browser, stats));
    }
    if (rows.empty()) {
        pane.addText(PaneBlock::Kind::text, translated("None of the supported browsers are installed."));
    } else {
        pane.addRows({}, std::move(rows));
    }
    pane.addText(
        PaneBlock::Kind::footnote,
        translated("Unsupported browsers, including Firefox, do not expose the current tab to other apps, so "
                   "they cannot be included."));
    return pane;
}

} // namespace kestrelfen
