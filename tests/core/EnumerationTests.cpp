#include "core/AppAppearance.hpp"
#include "core/BreakState.hpp"
#include "core/CadencePreset.hpp"
#include "core/DoubleEscapeAction.hpp"
#include "core/EnforcementLevel.hpp"
#include "core/HistoryRetention.hpp"
#include "core/IdleMode.hpp"
#include "core/SmartPauseKind.hpp"
#include "core/SnoozeOption.hpp"
#include "platform/fake/FakePreferences.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrelfen {
namespace {

struct Row {
    std::string rawValue;
    std::string label = {};
    std::string caption = {};

    friend bool operator==(const Row&, const Row&) = default;
    friend std::ostream& operator<<(std::ostream& stream, const Row& row) {
        return stream << row.rawValue << " | " << row.label << " | " << row.caption;
    }
};

template <typename Case>
std::vector<Row> rowsOf() {
    std::vector<Row> rows;
    for (const Case each : allCases<Case>()) {
        EXPECT_EQ(fromRawValue<Case>(rawValue(each)), each);
        rows.push_back({std::string(rawValue(each)), std::string(label(each)), std::string(caption(each))});
    }
    EXPECT_EQ(fromRawValue<Case>("unknown"), std::nullopt);
    EXPECT_EQ(fromRawValue<Case>(""), std::nullopt);
    return rows;
}

using Rows = std::vector<Row>;

TEST(Enumerations, EnforcementLevelHasItsCasesLabelsAndCaptionsInOrder) {
    EXPECT_EQ(rowsOf<EnforcementLevel>(), (Rows{{"casual", "Casual", "Skip anytime"},
                                                {"balanced", "Balanced", "Skip after a pause"},
                                                {"hardcore", "Hardcore", "No skips allowed"}}));
}

TEST(Enumerations, EnforcementLevelDelaysTheSkipByNothingFiveSecondsOrForEver) {
    EXPECT_EQ(skipDelay(EnforcementLevel::casual), 0.0);
    EXPECT_EQ(skipDelay(EnforcementLevel::balanced), 5.0);
    EXPECT_EQ(skipDelay(EnforcementLevel::hardcore), std::nullopt);
}

TEST(Enumerations, DoubleEscapeActionHasItsCasesAndLabelsInOrder) {
    EXPECT_EQ(rowsOf<DoubleEscapeAction>(),
              (Rows{{"nothing", "Nothing"}, {"snooze", "Snooze the break"}, {"skip", "Skip the break"}}));
}

TEST(Enumerations, IdleModeHasItsCasesLabelsAndCaptionsInOrder) {
    EXPECT_EQ(rowsOf<IdleMode>(), (Rows{{"off", "Off", "Never pauses"},
                                        {"automatic", "Automatic", "Scaled from your work interval"},
                                        {"custom", "Custom", "You choose how long counts as away"}}));
}

TEST(Enumerations, CadencePresetHasItsCasesLabelsAndCardNotesInOrder) {
    EXPECT_EQ(rowsOf<CadencePreset>(), (Rows{{"gentle", "Gentle", "min work / sec break"},
                                             {"standard", "Standard", "the 20-20-20 rule"},
                                             {"strict", "Strict", "min work / sec break"}}));
}

TEST(Enumerations, AppAppearanceHasItsCasesAndLabelsInOrder) {
    EXPECT_EQ(rowsOf<AppAppearance>(), (Rows{{"system", "System"}, {"light", "Light"}, {"dark", "Dark"}}));
}

TEST(Enumerations, BreakStateHasItsCasesInOrder) {
    EXPECT_EQ(rowsOf<BreakState::Case>(),
              (Rows{{"working"}, {"onBreak"}, {"paused"}, {"idle"}, {"preBreakWarning"}}));
}

TEST(Enumerations, PauseReasonHasItsCasesInOrder) {
    EXPECT_EQ(rowsOf<PauseReason>(), (Rows{{"manual"},
                                           {"systemSleep"},
                                           {"screenLocked"},
                                           {"displaySleep"},
                                           {"userIdle"},
                                           {"meeting"},
                                           {"videoPlayback"},
                                           {"screenSharing"},
                                           {"focusApp"}}));
}

TEST(Enumerations, PauseKindIsTheTwinOfPauseReason) {
    EXPECT_EQ(rowsOf<PauseKind>(), rowsOf<PauseReason>());
    for (const PauseReason reason : allCases<PauseReason>()) {
        EXPECT_EQ(rawValue(pauseKind(reason)), rawValue(reason));
    }
}

TEST(Enumerations, SmartPauseKindHasItsCasesInOrder) {
    EXPECT_EQ(rowsOf<SmartPauseKind>(), (Rows{{"meetings"}, {"video"}, {"screenSharing"}, {"focusApps"}}));
}

TEST(Enumerations, EachSmartPauseKindHasItsPauseReason) {
    EXPECT_EQ(pauseReason(SmartPauseKind::meetings), PauseReason::meeting);
    EXPECT_EQ(pauseReason(SmartPauseKind::video), PauseReason::videoPlayback);
    EXPECT_EQ(pauseReason(SmartPauseKind::screenSharing), PauseReason::screenSharing);
    EXPECT_EQ(pauseReason(SmartPauseKind::focusApps), PauseReason::focusApp);
}

TEST(Enumerations, SnoozeOptionHasItsMinutesSecondsAndLabelsInOrder) {
    std::vector<std::string> rows;
    for (const SnoozeOption option : snoozeOptions) {
        rows.push_back(std::to_string(minutes(option)) + ", " + std::to_string(seconds(option)) + ", " +
                       spokenLabel(option) + ", " + pickerLabel(option));
        EXPECT_EQ(snoozeOption(minutes(option)), option);
    }
    EXPECT_EQ(rows, (std::vector<std::string>{"1, 60.000000, Snooze 1 minute, 1 min",
                                              "3, 180.000000, Snooze 3 minutes, 3 min",
                                              "5, 300.000000, Snooze 5 minutes, 5 min"}));
}

TEST(Enumerations, NoOtherNumberOfMinutesIsASnoozeOption) {
    for (const std::int64_t raw : {-1, 0, 2, 4, 6, 60, 180, 300}) {
        EXPECT_EQ(snoozeOption(raw), std::nullopt) << raw;
    }
}

TEST(Enumerations, HistoryRetentionHasItsDaysAndLabelsInOrder) {
    std::vector<std::string> rows;
    for (const HistoryRetention retention : historyRetentions) {
        rows.push_back(std::to_string(days(retention)) + " " + std::string(label(retention)));
        EXPECT_EQ(historyRetention(days(retention)), retention);
    }
    EXPECT_EQ(rows, (std::vector<std::string>{"30 30 days", "90 90 days", "365 1 year", "0 Forever"}));
}

TEST(Enumerations, NoOtherNumberOfDaysIsAHistoryRetention) {
    for (const std::int64_t raw : {-1, 1, 29, 31, 91, 364, 366}) {
        EXPECT_EQ(historyRetention(raw), std::nullopt) << raw;
    }
}

TEST(PauseReasons, EveryReasonButManualIsAutomatic) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        EXPECT_EQ(isAutomatic(reason), reason != PauseReason::manual) << rawValue(reason);
    }
}

TEST(PauseReasons, TheLastFourAreSmart) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        EXPECT_EQ(isSmart(reason), reason >= PauseReason::meeting) << rawValue(reason);
    }
}

} // namespace
} // namespace kestrelfen
