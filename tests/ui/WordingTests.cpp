#include "ui/Wording.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

struct Sentence {
    std::string_view text;
    std::string_view shown;
};

class SentenceOfTheMac : public testing::TestWithParam<Sentence> {};

TEST_P(SentenceOfTheMac, isShownInOtherWords) {
    EXPECT_EQ(worded(GetParam().text), GetParam().shown);
    for (const std::string_view name :
         {"Mac", "macOS", ".mac", "SMAppService", "SwiftData", "System Settings", "Automation", "menu bar",
          "Menu bar", "Screen Recording", "Accessibility permission", "fast user switch"}) {
        EXPECT_EQ(worded(GetParam().text).find(name), std::string_view::npos) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Wording, SentenceOfTheMac,
    testing::Values(
        Sentence{"The Mac slept. Resumes on wake.", "The computer slept. Resumes on wake."},
        Sentence{"Start the timer from the menu bar.", "Start the timer from the tray."},
        Sentence{"SMAppService · also in the menu bar", "Starts with your session, in the tray"},
        Sentence{"Registered through SMAppService", "Starts with your session, in the tray"},
        Sentence{"Menu bar snooze button", "Tray snooze button"},
        Sentence{"Lock my Mac when a break starts", "Lock my computer when a break starts"},
        Sentence{"Apps that only run while capturing — not ones that idle in the menu bar",
                 "Apps that only run while capturing — not ones that idle in the tray"},
        Sentence{"This Mac won't report per-app audio, so calls and video fall back to whichever app is "
                 "frontmost.",
                 "The sound server won't report per-app audio, so calls and video fall back to whichever app "
                 "is frontmost."},
        Sentence{"Detected from microphone and audio activity, running apps, and the frontmost app. No new "
                 "permissions, and nothing leaves your Mac.",
                 "Detected from microphone and audio activity, running apps, and the frontmost app. No new "
                 "permissions, and nothing leaves your computer."},
        Sentence{"A manual pause from the menu bar always works, and is never lifted by a system event.",
                 "A manual pause from the tray always works, and is never lifted by a system event."},
        Sentence{"Lock screen or fast user switch", "Lock screen or a switch to another user"},
        Sentence{"Displays turn off but the Mac stays awake",
                 "Displays turn off but the computer stays awake"},
        Sentence{"When the Mac sleeps", "When the computer sleeps"},
        Sentence{"Only the domain of the tab you're looking at — example.com, not the full address, the page "
                 "title, or anything on the page. It is stored on this Mac and never sent anywhere. macOS "
                 "asks you to approve each browser separately.",
                 "Only the domain of the tab you're looking at — example.com, not the full address, the page "
                 "title, or anything on the page. It is stored on this computer and never sent anywhere. It "
                 "is read through the desktop's accessibility support, which turning a browser on switches "
                 "on."},
        Sentence{"Denied in System Settings › Privacy & Security › Automation",
                 "The desktop's accessibility support cannot be switched on"},
        Sentence{"macOS will ask when you allow it", "Start the browser again after allowing it"},
        Sentence{"Closed — it will be opened so macOS can ask", "Closed — it will be opened to be read"},
        Sentence{"Unsupported browsers, including Firefox, do not expose the current tab to other apps, so "
                 "they cannot be included.",
                 "Other browsers, including Firefox, are not read."},
        Sentence{"Follows the macOS appearance setting", "Follows the desktop's appearance setting"},
        Sentence{"Applied to the whole app, so the break overlays and the menu bar popover follow it too.",
                 "Applied to the whole app, so the break overlays and the tray popover follow it too."},
        Sentence{"app.kestrelfen.mac", "app.kestrelfen.Kestrelfen"},
        Sentence{"Resolved from window bounds. No Screen Recording or Accessibility permission.",
                 "Resolved from window bounds. Nothing on the screen is recorded."},
        Sentence{"from the browsers you enabled · Automation permission",
                 "from the browsers you enabled · accessibility support"},
        Sentence{"Stored in SwiftData behind a versioned schema · pruning runs at most once a day",
                 "Stored in SQLite behind a versioned schema · pruning runs at most once a day"}));

TEST(Wording, leavesAnyOtherTextAlone) {
    EXPECT_EQ(worded("Screen locked. Resumes on unlock."), "Screen locked. Resumes on unlock.");
    EXPECT_EQ(worded(""), "");
    EXPECT_EQ(worded("When the Mac"), "When the Mac");
}

} // namespace
} // namespace kestrelfen
