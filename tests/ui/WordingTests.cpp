#include "ui/Wording.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class SentenceOfTheMac : public testing::TestWithParam<std::string_view> {};

TEST_P(SentenceOfTheMac, isShownInOtherWords) {
    const std::string_view shown = worded(GetParam());
    EXPECT_NE(shown, GetParam());
    for (const std::string_view name :
         {"Mac", "macOS", "SMAppService", "SwiftData", "System Settings", "menu bar", "Menu bar"}) {
        EXPECT_EQ(shown.find(name), std::string_view::npos) << shown;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Wording, SentenceOfTheMac,
    testing::Values(
        "The Mac slept. Resumes on wake.", "Start the timer from the menu bar.",
        "SMAppService · also in the menu bar", "Registered through SMAppService",
        "Lock my Mac when a break starts", "Menu bar snooze button",
        "Apps that only run while capturing — not ones that idle in the menu bar",
        "This Mac won't report per-app audio, so calls and video fall back to whichever app is frontmost.",
        "Detected from microphone and audio activity, running apps, and the frontmost app. No new "
        "permissions, and nothing leaves your Mac.",
        "A manual pause from the menu bar always works, and is never lifted by a system event.",
        "Displays turn off but the Mac stays awake", "When the Mac sleeps",
        "Only the domain of the tab you're looking at — example.com, not the full address, the page title, "
        "or anything on the page. It is stored on this Mac and never sent anywhere. macOS asks you to "
        "approve each browser separately.",
        "Denied in System Settings › Privacy & Security › Automation", "macOS will ask when you allow it",
        "Closed — it will be opened so macOS can ask",
        "Unsupported browsers, including Firefox, do not expose the current tab to other apps, so they "
        "cannot be included.",
        "Follows the macOS appearance setting",
        "Applied to the whole app, so the break overlays and the menu bar popover follow it too.",
        "Stored in SwiftData behind a versioned schema · pruning runs at most once a day"));

TEST(Wording, leavesAnyOtherTextAlone) {
    EXPECT_EQ(worded("Screen locked. Resumes on unlock."), "Screen locked. Resumes on unlock.");
    EXPECT_EQ(worded(""), "");
    EXPECT_EQ(worded("When the Mac"), "When the Mac");
}

} // namespace
} // namespace kestrelfen
