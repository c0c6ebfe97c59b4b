#include "ui/Wording.hpp"

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

struct Replacement {
    std::string_view text;
    std::string_view shown;
};

constexpr std::array replacements{
    Replacement{"The Mac slept. Resumes on wake.", toTranslate("The computer slept. Resumes on wake.")},
    Replacement{"Start the timer from the menu bar.", toTranslate("Start the timer from the tray.")},
    Replacement{"SMAppService · also in the menu bar", toTranslate("Starts with your session, in the tray")},
    Replacement{"Registered through SMAppService", toTranslate("Starts with your session, in the tray")},
    Replacement{"Menu bar snooze button", toTranslate("Tray snooze button")},
    Replacement{"Lock my Mac when a break starts", toTranslate("Lock my computer when a break starts")},
    Replacement{"Apps that only run while capturing — not ones that idle in the menu bar",
                toTranslate("Apps that only run while capturing — not ones that idle in the tray")},
    Replacement{
        "This Mac won't report per-app audio, so calls and video fall back to whichever app is frontmost.",
        toTranslate(
            "The sound server won't report per-app audio, so calls and video fall back to whichever app is "
            "frontmost.")},
    Replacement{
        "Detected from microphone and audio activity, running apps, and the frontmost app. No new "
        "permissions, and nothing leaves your Mac.",
        toTranslate(
            "Detected from microphone and audio activity, running apps, and the frontmost app. No new "
            "permissions, and nothing leaves your computer.")},
    Replacement{
        "A manual pause from the menu bar always works, and is never lifted by a system event.",
        toTranslate("A manual pause from the tray always works, and is never lifted by a system event.")},
    Replacement{"Lock screen or fast user switch", toTranslate("Lock screen or a switch to another user")},
    Replacement{"Displays turn off but the Mac stays awake",
                toTranslate("Displays turn off but the computer stays awake")},
    Replacement{"When the Mac sleeps", toTranslate("When the computer sleeps")},
    Replacement{
        "Only the domain of the tab you're looking at — example.com, not the full address, the page "
        "title, or anything on the page. It is stored on this Mac and never sent anywhere. macOS "
        "asks you to approve each browser separately.",
        toTranslate(
            "Only the domain of the tab you're looking at — example.com, not the full address, the page "
            "title, or anything on the page. It is stored on this computer and never sent anywhere. It "
            "is read through the desktop's accessibility support, which turning a browser on switches "
            "on.")},
    Replacement{"Denied in System Settings › Privacy & Security › Automation",
                toTranslate("The desktop's accessibility support cannot be switched on")},
    Replacement{"macOS will ask when you allow it", toTranslate("Start the browser again after allowing it")},
    Replacement{"Closed — it will be opened so macOS can ask",
                toTranslate("Closed — it will be opened to be read")},
    Replacement{
        "Unsupported browsers, including Firefox, do not expose the current tab to other apps, so they "
        "cannot be included.",
        toTranslate("Other browsers, including Firefox, are not read.")},
    Replacement{"Follows the macOS appearance setting",
                toTranslate("Follows the desktop's appearance setting")},
    Replacement{
        "Applied to the whole app, so the break overlays and the menu bar popover follow it too.",
        toTranslate("Applied to the whole app, so the break overlays and the tray popover follow it too.")},
    Replacement{"app.kestrelfen.mac", "app.kestrelfen.Kestrelfen"},
    Replacement{"Resolved from window bounds. No Screen Recording or Accessibility permission.",
                toTranslate("Resolved from window bounds. Nothing on the screen is recorded.")},
    Replacement{"from the browsers you enabled · Automation permission",
                toTranslate("from the browsers you enabled · accessibility support")},
    Replacement{"Stored in SwiftData behind a versioned schema · pruning runs at most once a day",
                toTranslate("Stored in SQLite behind a versioned schema · pruning runs at most once a day")},
};

} // namespace

std::string_view worded(std::string_view text) {
    const auto found = std::find_if(replacements.begin(), replacements.end(),
                                    [text](const Replacement& row) { return row.text == text; });
    return found == replacements.end() ? text : found->shown;
}

} // namespace kestrelfen
