#include "PaneText.hpp"
#include "core/EnforcementLevel.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "ui/SettingsWindowView/EnforcementPane.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class EnforcementPaneTest : public testing::Test {
  protected:
    PaneContent content() const { return EnforcementPane::content(preferences); }
    std::string row(std::size_t index) const { return rowText(content().rows().at(index)); }

    void choose(std::string_view key, std::string_view word) {
        const SettingChoice& choice = *SettingChoice::find(key);
        SettingsControls(preferences).choose(choice, *choice.option(word));
    }

    FakePreferences preferences;
};

TEST_F(EnforcementPaneTest, TellsEachRow) {
    EXPECT_EQ(
        paneText(content()),
        "Enforcement\n"
        "How easily a break can be dismissed, and how many ways out you get in a day.\n"
        "cards\n"
        "  Casual / Skip any time / card\n"
        "  Balanced / Skip after a pause / selected\n"
        "  Hardcore / No skips allowed / card\n"
        "# Snoozing\n"
        "rows\n"
        "  Menu bar snooze button / The reminder and the break screen offer +1, +3 and +5 directly / "
        "accent 1 min 3 min [5 min]\n"
        "  Snoozes allowed per day / Resets at local midnight / plain None 1 2 3 5 [No limit]\n"
        "  Snoozes allowed per break / Counted again for each new break / plain None 1 2 3 5 [No limit]\n"
        "# Skipping\n"
        "rows\n"
        "  Show the skip button on the break screen / The enforcement level still decides when it appears / "
        "on\n"
        "  Advance skips allowed per day / Skipping the next break before it arrives / "
        "plain None 1 2 3 5 [No limit]\n"
        "  Let me end a break early if I'm done / Counts as completed, not skipped — only near the end / on\n"
        "  Pressing Escape twice / One press is always ignored / "
        "plain [Nothing] Snooze the break Skip the break\n"
        "# At break start\n"
        "rows\n"
        "  Lock my Mac when a break starts / You'll need your password to get back in / off\n"
        "footnote / Quotas are counted per local day and are not kept as history.\n");
    EXPECT_EQ(preferences.all().size(), 0U);
}

TEST_F(EnforcementPaneTest, HardcoreWarns) {
    choose("enforcementLevel", "hardcore");
    EXPECT_EQ(row(2), "Hardcore / No skips allowed / selected");
    const PaneBlock callout = content().blocks.at(1);
    EXPECT_EQ(callout.kind, PaneBlock::Kind::callout);
    EXPECT_EQ(callout.tint, "amber");
    EXPECT_EQ(content().notes(),
              (std::vector<std::string>{
                  "No way out: Breaks cannot be skipped at all. Snoozes and Escape still apply if you allow "
                  "them below.",
                  "Quotas are counted per local day and are not kept as history."}));
    choose("enforcementLevel", "casual");
    EXPECT_EQ(row(0), "Casual / Skip any time / selected");
    EXPECT_EQ(content().notes().size(), 1U);
}

TEST_F(EnforcementPaneTest, UnknownLevelShowsAsBalanced) {
    preferences.set("enforcementLevel", std::string("cruel"));
    EXPECT_EQ(row(1), "Balanced / Skip after a pause / selected");
}

TEST_F(EnforcementPaneTest, LevelTouchesNothingElse) {
    preferences.set("snoozesPerDay", std::int64_t{2});
    preferences.set("showSkipButton", false);
    const auto before = preferences.all();
    choose("enforcementLevel", "hardcore");
    auto after = preferences.all();
    EXPECT_EQ(after.at("enforcementLevel"), PreferenceValue(std::string("hardcore")));
    after.erase("enforcementLevel");
    EXPECT_EQ(after, before);
}

TEST_F(EnforcementPaneTest, SnoozeShowsTheNearestOfItsThreeLengths) {
    struct Case {
        double stored;
        const char* label;
    };
    for (const auto& [stored, label] :
         {Case{60, "[1 min]"}, Case{119, "[1 min]"}, Case{120, "[1 min]"}, Case{121, "[3 min]"},
          Case{180, "[3 min]"}, Case{240, "[3 min]"}, Case{240.5, "[5 min]"}, Case{300, "[5 min]"},
          Case{9000, "[5 min]"}, Case{-5, "[1 min]"}}) {
        preferences.set("snoozeDurationSeconds", stored);
        EXPECT_NE(row(3).find(label), std::string::npos) << stored << ": " << row(3);
    }
}

TEST_F(EnforcementPaneTest, SnoozeIsWrittenInSeconds) {
    choose("snoozeDurationSeconds", "60");
    EXPECT_EQ(*preferences.object("snoozeDurationSeconds"), PreferenceValue(60.0));
    choose("snoozeDurationSeconds", "180");
    EXPECT_EQ(*preferences.object("snoozeDurationSeconds"), PreferenceValue(180.0));
    choose("snoozeDurationSeconds", "300.0");
    EXPECT_EQ(*preferences.object("snoozeDurationSeconds"), PreferenceValue(300.0));
    EXPECT_EQ(SettingChoice::find("snoozeDurationSeconds")->option("120"), nullptr);
    EXPECT_EQ(SettingChoice::find("snoozeDurationSeconds")->option("60s"), nullptr);
}

TEST_F(EnforcementPaneTest, QuotasAreWrittenAsWholeNumbers) {
    struct Quota {
        const char* key;
        std::size_t row;
    };
    for (const auto& [key, index] :
         {Quota{"snoozesPerDay", 4}, Quota{"snoozesPerBreak", 5}, Quota{"advanceSkipsPerDay", 7}}) {
        choose(key, "0");
        EXPECT_NE(row(index).find("plain [None] 1 2 3 5 No limit"), std::string::npos) << row(index);
        choose(key, "3");
        EXPECT_NE(row(index).find("plain None 1 2 [3] 5 No limit"), std::string::npos) << row(index);
        EXPECT_EQ(*preferences.object(key), PreferenceValue(std::int64_t{3}));
        choose(key, "-1");
        EXPECT_NE(row(index).find("[No limit]"), std::string::npos) << row(index);
        preferences.set(key, std::int64_t{4});
        EXPECT_NE(row(index).find("plain None 1 2 3 5 No limit"), std::string::npos) << row(index);
        EXPECT_EQ(SettingChoice::find(key)->option("4"), nullptr);
    }
}

TEST_F(EnforcementPaneTest, TogglesAndEscape) {
    choose("showSkipButton", "false");
    choose("allowEndBreakEarly", "false");
    choose("lockOnBreakStart", "true");
    choose("doubleEscapeAction", "skip");
    EXPECT_EQ(row(6).substr(row(6).size() - 4), " off");
    EXPECT_EQ(row(8).substr(row(8).size() - 4), " off");
    EXPECT_NE(row(9).find("plain Nothing Snooze the break [Skip the break]"), std::string::npos);
    EXPECT_EQ(row(10).substr(row(10).size() - 3), " on");
    EXPECT_EQ(*preferences.object("doubleEscapeAction"), PreferenceValue(std::string("skip")));
    EXPECT_EQ(*preferences.object("lockOnBreakStart"), PreferenceValue(true));
}

TEST_F(EnforcementPaneTest, WhatIsInForceIsWrittenAgain) {
    choose("showSkipButton", "true");
    EXPECT_EQ(*preferences.object("showSkipButton"), PreferenceValue(true));
}

} // namespace
} // namespace kestrelfen
