#include "core/AppAppearance.hpp"
#include "core/DoubleEscapeAction.hpp"
#include "core/EnforcementLevel.hpp"
#include "core/IdleMode.hpp"
#include "core/PauseReason.hpp"
#include "platform/fake/FakePreferences.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kestrelfen {
namespace {

template <typename Case>
void expectStoredUnder(std::string_view key, Case fallback) {
    FakePreferences preferences;
    EXPECT_EQ(current<Case>(preferences), fallback);
    for (const PreferenceValue& unknown :
         {PreferenceValue("unknown"), PreferenceValue(""), PreferenceValue(1), PreferenceValue(true)}) {
        preferences.set(key, unknown);
        EXPECT_EQ(current<Case>(preferences), fallback);
    }
    for (const Case each : allCases<Case>()) {
        store(each, preferences);
        EXPECT_EQ(*preferences.string(key), rawValue(each));
        EXPECT_EQ(current<Case>(preferences), each);
    }
    EXPECT_EQ(preferences.all().size(), 1U);
}

TEST(StoredEnumerations, EnforcementLevelFallsBackToBalanced) {
    expectStoredUnder("enforcementLevel", EnforcementLevel::balanced);
}

TEST(StoredEnumerations, DoubleEscapeActionFallsBackToNothing) {
    expectStoredUnder("doubleEscapeAction", DoubleEscapeAction::nothing);
}

TEST(StoredEnumerations, AppAppearanceFallsBackToSystem) {
    expectStoredUnder("appearance", AppAppearance::system);
}

TEST(StoredEnumerations, IdleModeOfAFreshInstallationIsAutomatic) {
    expectStoredUnder("idleMode", IdleMode::automatic);
}

TEST(IdleModes, AnOldRefusalOfIdlePausesHoldsWhileNoModeIsStored) {
    FakePreferences preferences;
    preferences.set("pauseOnIdle", false);
    EXPECT_EQ(current<IdleMode>(preferences), IdleMode::off);
    preferences.set("idleMode", "unknown");
    EXPECT_EQ(current<IdleMode>(preferences), IdleMode::off);
    preferences.set("idleMode", 2);
    EXPECT_EQ(current<IdleMode>(preferences), IdleMode::off);
}

TEST(IdleModes, AStoredModeBeatsTheOldKey) {
    FakePreferences preferences;
    preferences.set("pauseOnIdle", false);
    for (const IdleMode mode : allCases<IdleMode>()) {
        preferences.set("idleMode", std::string(rawValue(mode)));
        EXPECT_EQ(current<IdleMode>(preferences), mode);
    }
}

TEST(IdleModes, AnOldConsentToIdlePausesIsAutomatic) {
    FakePreferences preferences;
    preferences.set("pauseOnIdle", true);
    EXPECT_EQ(current<IdleMode>(preferences), IdleMode::automatic);
    preferences.set("pauseOnIdle", "false");
    EXPECT_EQ(current<IdleMode>(preferences), IdleMode::automatic);
}

TEST(IdleThreshold, OffIsTheLargestFiniteNumber) {
    FakePreferences preferences;
    preferences.set("idleMode", "off");
    EXPECT_EQ(effectiveIdleThreshold(preferences), std::numeric_limits<double>::max());
}

TEST(IdleThreshold, AutomaticIsATwentiethOfTheWorkIntervalWithinHalfAMinuteAndTwo) {
    FakePreferences preferences;
    EXPECT_EQ(effectiveIdleThreshold(preferences), 60.0);
    const std::pair<double, double> rows[] = {{60, 30},    {599, 30},   {600, 30},     {602, 30.1},
                                              {1200, 60},  {2400, 120}, {2398, 119.9}, {2401, 120},
                                              {7200, 120}, {0, 30}};
    for (const auto& [work, threshold] : rows) {
        preferences.set("workIntervalSeconds", work);
        EXPECT_DOUBLE_EQ(effectiveIdleThreshold(preferences), threshold) << work;
        EXPECT_DOUBLE_EQ(automaticIdleThreshold(work), threshold) << work;
    }
}

TEST(IdleThreshold, CustomIsTheStoredNumberWithOneMinuteAsFallback) {
    FakePreferences preferences;
    preferences.set("idleMode", "custom");
    EXPECT_EQ(effectiveIdleThreshold(preferences), 60.0);
    preferences.set("idleThresholdSeconds", 15.0);
    EXPECT_EQ(effectiveIdleThreshold(preferences), 15.0);
    preferences.set("idleThresholdSeconds", 0.0);
    EXPECT_EQ(effectiveIdleThreshold(preferences), 0.0);
    preferences.set("idleThresholdSeconds", 5000.0);
    EXPECT_EQ(effectiveIdleThreshold(preferences), 5000.0);
}

struct EnabledRow {
    PauseReason reason;
    std::string_view key;
    bool fallback;
};

TEST(PauseReasons, EachIsEnabledByItsOwnKeyAndFallback) {
    const EnabledRow rows[] = {
        {PauseReason::systemSleep, "pauseOnSystemSleep", true},
        {PauseReason::screenLocked, "pauseOnScreenLock", true},
        {PauseReason::displaySleep, "pauseOnDisplaySleep", true},
        {PauseReason::meeting, "smartPauseMeetings", true},
        {PauseReason::videoPlayback, "smartPauseVideo", true},
        {PauseReason::screenSharing, "smartPauseScreenSharing", true},
        {PauseReason::focusApp, "smartPauseFocusApps", false},
    };
    for (const EnabledRow& row : rows) {
        FakePreferences preferences;
        EXPECT_EQ(enableKey(row.reason), row.key);
        EXPECT_EQ(isEnabledInSettings(row.reason, preferences), row.fallback) << row.key;
        preferences.set(row.key, !row.fallback);
        for (const PauseReason reason : allCases<PauseReason>()) {
            const bool usual = reason != PauseReason::focusApp;
            EXPECT_EQ(isEnabledInSettings(reason, preferences), reason == row.reason ? !row.fallback : usual)
                << row.key << " and " << rawValue(reason);
        }
    }
}

TEST(PauseReasons, ManualIsAlwaysEnabled) {
    EXPECT_EQ(enableKey(PauseReason::manual), "");
    EXPECT_TRUE(isEnabledInSettings(PauseReason::manual, FakePreferences()));
}

TEST(PauseReasons, UserIdleIsEnabledUnlessTheModeIsOff) {
    FakePreferences preferences;
    EXPECT_EQ(enableKey(PauseReason::userIdle), "");
    EXPECT_TRUE(isEnabledInSettings(PauseReason::userIdle, preferences));
    preferences.set("pauseOnIdle", false);
    EXPECT_FALSE(isEnabledInSettings(PauseReason::userIdle, preferences));
    preferences.set("idleMode", "custom");
    EXPECT_TRUE(isEnabledInSettings(PauseReason::userIdle, preferences));
    preferences.set("idleMode", "off");
    EXPECT_FALSE(isEnabledInSettings(PauseReason::userIdle, preferences));
}

} // namespace
} // namespace kestrelfen
