#include "core/HistoryRetention.hpp"
#include "core/Settings.hpp"
#include "core/SnoozeOption.hpp"
#include "platform/fake/FakePreferences.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

PreferenceData bytes(std::string_view text) {
    return {text.begin(), text.end()};
}

TEST(Settings, AbsentKeyReadsAsTheFallbackOfItsReadSite) {
    const FakePreferences preferences;
    EXPECT_TRUE(Settings::boolean(preferences, "pauseOnScreenLock", true));
    EXPECT_FALSE(Settings::boolean(preferences, "pauseOnScreenLock", false));
    EXPECT_EQ(Settings::integer(preferences, "snoozesPerDay", -1), -1);
    EXPECT_EQ(Settings::real(preferences, "workIntervalSeconds", 1200.0), 1200.0);
}

TEST(Settings, StoredFalseAndZeroBeatTheFallback) {
    FakePreferences preferences;
    preferences.set("showSkipButton", false);
    preferences.set("longBreakEvery", 0);
    preferences.set("preBreakWarningLeadSeconds", 0.0);
    EXPECT_FALSE(Settings::boolean(preferences, "showSkipButton", true));
    EXPECT_EQ(Settings::integer(preferences, "longBreakEvery", 4), 0);
    EXPECT_EQ(Settings::real(preferences, "preBreakWarningLeadSeconds", 10.0), 0.0);
}

TEST(Settings, StoredQuotaOfZeroReadsAsZeroAndNotAsNoLimit) {
    FakePreferences preferences;
    preferences.set("snoozesPerDay", 0);
    EXPECT_EQ(Settings::integer(preferences, "snoozesPerDay", -1), 0);
}

TEST(Settings, StoredValueBeatsTheFallback) {
    FakePreferences preferences;
    preferences.set("lockOnBreakStart", true);
    preferences.set("snoozesPerDay", 3);
    preferences.set("workIntervalSeconds", 900.5);
    EXPECT_TRUE(Settings::boolean(preferences, "lockOnBreakStart", false));
    EXPECT_EQ(Settings::integer(preferences, "snoozesPerDay", -1), 3);
    EXPECT_EQ(Settings::real(preferences, "workIntervalSeconds", 1200.0), 900.5);
}

TEST(Settings, EachReadSeesTheLatestValueAndARemovedKeyIsAbsentAgain) {
    FakePreferences preferences;
    preferences.set("snoozesPerDay", 3);
    EXPECT_EQ(Settings::integer(preferences, "snoozesPerDay", -1), 3);
    preferences.set("snoozesPerDay", 5);
    EXPECT_EQ(Settings::integer(preferences, "snoozesPerDay", -1), 5);
    preferences.remove("snoozesPerDay");
    EXPECT_EQ(Settings::integer(preferences, "snoozesPerDay", -1), -1);
}

TEST(Settings, ValueOfAnotherTypeReadsAsAbsent) {
    FakePreferences preferences;
    preferences.set("text", "true");
    preferences.set("number", 1);
    preferences.set("truth", true);
    preferences.set("texts", PreferenceStrings{"1"});
    EXPECT_TRUE(Settings::boolean(preferences, "text", true));
    EXPECT_FALSE(Settings::boolean(preferences, "number", false));
    EXPECT_EQ(Settings::integer(preferences, "truth", 7), 7);
    EXPECT_EQ(Settings::integer(preferences, "text", 7), 7);
    EXPECT_EQ(Settings::real(preferences, "truth", 2.5), 2.5);
    EXPECT_EQ(Settings::real(preferences, "texts", 2.5), 2.5);
}

TEST(Settings, ReadingWritesNothing) {
    FakePreferences preferences;
    Settings::boolean(preferences, "a", true);
    Settings::integer(preferences, "b", 1);
    Settings::real(preferences, "c", 1.0);
    Settings::activeTaskID(preferences);
    EXPECT_TRUE(preferences.all().empty());
}

TEST(SettingsActiveTaskID, IsAbsentWithoutData) {
    const FakePreferences preferences;
    EXPECT_EQ(Settings::activeTaskID(preferences), std::nullopt);
}

TEST(SettingsActiveTaskID, ReadsBackWhatWasSet) {
    FakePreferences preferences;
    for (const std::int64_t identifier :
         {std::int64_t{1}, std::int64_t{0}, std::int64_t{-5}, std::numeric_limits<std::int64_t>::max()}) {
        Settings::setActiveTaskID(preferences, identifier);
        EXPECT_EQ(Settings::activeTaskID(preferences), identifier);
    }
}

TEST(SettingsActiveTaskID, IsStoredAsDataInJson) {
    FakePreferences preferences;
    Settings::setActiveTaskID(preferences, 42);
    ASSERT_NE(preferences.data("activeTaskID"), nullptr);
    EXPECT_EQ(*preferences.data("activeTaskID"), bytes("42"));
}

TEST(SettingsActiveTaskID, NothingRemovesTheKey) {
    FakePreferences preferences;
    Settings::setActiveTaskID(preferences, 42);
    Settings::setActiveTaskID(preferences, std::nullopt);
    EXPECT_EQ(preferences.object("activeTaskID"), nullptr);
}

TEST(SettingsActiveTaskID, DataThatCannotBeDecodedReadsAsNothing) {
    FakePreferences preferences;
    for (const std::string_view text : {"", "{}", "12x", "\"12\"", "1.5", "99999999999999999999", "null"}) {
        preferences.set("activeTaskID", bytes(text));
        EXPECT_EQ(Settings::activeTaskID(preferences), std::nullopt) << text;
    }
}

TEST(SettingsActiveTaskID, ValueThatIsNoDataReadsAsNothing) {
    FakePreferences preferences;
    preferences.set("activeTaskID", 42);
    EXPECT_EQ(Settings::activeTaskID(preferences), std::nullopt);
    preferences.set("activeTaskID", "42");
    EXPECT_EQ(Settings::activeTaskID(preferences), std::nullopt);
}

TEST(Settings, TheSnoozeWithoutALengthLastsFiveMinutesOrWhatIsStored) {
    FakePreferences preferences;
    EXPECT_EQ(chosenSnoozeSeconds(preferences), 300.0);
    for (const double stored : {60.0, 61.5, 0.0}) {
        preferences.set("snoozeDurationSeconds", stored);
        EXPECT_EQ(chosenSnoozeSeconds(preferences), stored);
    }
}

TEST(Settings, HistoryIsKeptForAYearUnlessAnOfferedTimeIsStored) {
    FakePreferences preferences;
    EXPECT_EQ(chosenRetention(preferences), HistoryRetention::year);
    for (const HistoryRetention retention : historyRetentions) {
        preferences.set("historyRetentionDays", days(retention));
        EXPECT_EQ(chosenRetention(preferences), retention);
    }
    for (const std::int64_t stored : {-1, 1, 31, 366}) {
        preferences.set("historyRetentionDays", stored);
        EXPECT_EQ(chosenRetention(preferences), HistoryRetention::year) << stored;
    }
}

} // namespace
} // namespace kestrelfen
