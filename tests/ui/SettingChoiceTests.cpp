#include "core/HistoryRetention.hpp"
#include "core/PauseReason.hpp"
#include "core/SnoozeOption.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "sensing/SmartPauseLists.hpp"
#include "ui/SettingsWindowView/SettingChoice.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

/// The option of `key` that is shown.
const SettingChoice::Option& shown(std::string_view key, const Preferences& preferences) {
    const SettingChoice& choice = *SettingChoice::find(key);
    return choice.options().at(choice.selected(preferences).value());
}

/// Choices that a pane and what obeys it each read for themselves.
TEST(SettingChoices, APauseIsShownAsItIsInForceChosenOrNot) {
    std::size_t count = 0;
    for (const PauseReason reason : allCases<PauseReason>()) {
        const std::string_view key = enableKey(reason);
        if (key.empty()) {
            continue;
        }
        ++count;
        FakePreferences preferences;
        const bool usual = isEnabledInSettings(reason, preferences);
        EXPECT_EQ(shown(key, preferences).value, PreferenceValue(usual)) << key;
        SettingChoice::find(key)->choose(*SettingChoice::find(key)->option(usual ? "false" : "true"),
                                         preferences);
        EXPECT_EQ(isEnabledInSettings(reason, preferences), !usual) << key;
        EXPECT_EQ(shown(key, preferences).value, PreferenceValue(!usual)) << key;
    }
    EXPECT_EQ(count, 7U);
}

TEST(SettingChoices, ASmartPauseHasOneSwitchForTheEngineAndTheMonitor) {
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        const std::string_view key = SmartPauseLists::enableKey(kind);
        EXPECT_EQ(key, enableKey(pauseReason(kind)));
        FakePreferences preferences;
        for (const bool stored : {false, true}) {
            EXPECT_EQ(SmartPauseLists::isEnabled(kind, preferences),
                      isEnabledInSettings(pauseReason(kind), preferences))
                << key;
            preferences.set(key, stored);
            EXPECT_EQ(SmartPauseLists::isEnabled(kind, preferences), stored) << key;
        }
    }
}

TEST(SettingChoices, WithoutAChoiceTheSnoozeAndTheRetentionInForceAreShown) {
    const FakePreferences preferences;
    EXPECT_EQ(shown("snoozeDurationSeconds", preferences).value,
              PreferenceValue(chosenSnoozeSeconds(preferences)));
    EXPECT_EQ(shown("historyRetentionDays", preferences).value,
              PreferenceValue(days(chosenRetention(preferences))));
}

TEST(SettingChoices, ALengthIsFoundHoweverItsNumberIsWritten) {
    const SettingChoice& snooze = *SettingChoice::find("snoozeDurationSeconds");
    const SettingChoice::Option* const fiveMinutes = snooze.option("300");
    ASSERT_NE(fiveMinutes, nullptr);
    EXPECT_EQ(fiveMinutes->value, PreferenceValue(300.0));
    EXPECT_EQ(snooze.option("300.0"), fiveMinutes);
    EXPECT_EQ(snooze.option("3e2"), fiveMinutes);
}

TEST(SettingChoices, WhatIsNoOptionIsNotFound) {
    const SettingChoice& snooze = *SettingChoice::find("snoozeDurationSeconds");
    for (const char* const word : {"", "300 s", "301", "-300", "1e999", "five"}) {
        EXPECT_EQ(snooze.option(word), nullptr) << word;
    }
    EXPECT_EQ(SettingChoice::find("snoozesPerDay")->option("4"), nullptr);
    EXPECT_EQ(SettingChoice::find("workIntervalSeconds"), nullptr);
}

} // namespace
} // namespace kestrelfen
