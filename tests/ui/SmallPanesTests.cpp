#include "PaneText.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "ui/SettingsWindowView/AboutPane.hpp"
#include "ui/SettingsWindowView/AppearancePane.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"
#include "ui/SettingsWindowView/SettingsRail.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(SettingsRail, NamesThePanesInOrder) {
    std::string labels;
    for (const SettingsPane pane : allCases<SettingsPane>()) {
        labels += std::string(SettingsRail::label(pane)) + "\n";
    }
    EXPECT_EQ(SettingsRail::heading, "Settings");
    EXPECT_EQ(SettingsRail::version("1.0.0", "1"), "v1.0.0 (1)");
    EXPECT_EQ(SettingsRail::identifier, "app.kestrelfen.mac");
    EXPECT_EQ(labels,
              "Timing\nEnforcement\nSmart Pause\nPausing\nWebsite Stats\nNotifications\nAppearance\nAbout\n");
}

TEST(AppearancePane, TellsEachCard) {
    const FakePreferences preferences;
    EXPECT_FALSE(AppearancePane::content(preferences).hasMark);
    EXPECT_EQ(
        paneText(AppearancePane::content(preferences)),
        "Appearance\n"
        "Kestrelfen can follow the system or stay in one palette.\n"
        "mode cards\n"
        "  System / Follows the macOS appearance setting / selected\n"
        "  Light / Always the light palette / card\n"
        "  Dark / Always the dark palette / card\n"
        "text / Applied to the whole app, so the break overlays and the menu bar popover follow it too.\n");
}

TEST(AppearancePane, EachCardIsAMode) {
    const FakePreferences preferences;
    for (const PaneRow& row : AppearancePane::content(preferences).rows()) {
        EXPECT_EQ(std::get<CardState>(row.control).eyebrow, "Mode");
    }
}

TEST(AppearancePane, CardIsWrittenAndSelected) {
    FakePreferences preferences;
    const SettingChoice& choice = *SettingChoice::find("appearance");
    for (const std::string word : {"light", "dark", "system"}) {
        SettingsControls(preferences).choose(choice, *choice.option(word));
        EXPECT_EQ(*preferences.string("appearance"), word);
        for (const PaneRow& row : AppearancePane::content(preferences).rows()) {
            const auto& card = std::get<CardState>(row.control);
            EXPECT_EQ(card.isSelected, card.word == word);
        }
    }
}

TEST(AboutPane, IsTwoLinesUnderTheMark) {
    EXPECT_TRUE(AboutPane::content().hasMark);
    EXPECT_EQ(paneText(AboutPane::content()),
              "Kestrelfen\n"
              "A 20-20-20 eye-break timer that reads the wall clock, pauses itself when you step away, and "
              "keeps its own receipts locally.\n");
}

TEST(SettingChoice, EveryKeyHasItsWordsAndNoOther) {
    EXPECT_EQ(SettingChoice::find("workIntervalSeconds"), nullptr);
    EXPECT_EQ(SettingChoice::find(""), nullptr);
    EXPECT_EQ(SettingChoice::find("enforcementLevel")->option("Hardcore"), nullptr);
    EXPECT_EQ(SettingChoice::find("showSkipButton")->option("1"), nullptr);
    EXPECT_EQ(SettingChoice::find("snoozesPerDay")->option("3.0"), nullptr);
    EXPECT_EQ(Stepper::find("showSkipButton"), nullptr);
    EXPECT_EQ(Stepper::find("longBreakEvery"), &Steppers::longBreakEvery);
}

} // namespace
} // namespace kestrelfen
