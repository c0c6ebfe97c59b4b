#include "core/BreakEngineConfig.hpp"
#include "platform/fake/FakePreferences.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kestrelfen {

std::ostream& operator<<(std::ostream& stream, const BreakEngineConfig& config) {
    return stream << "work " << config.workInterval << ", break " << config.breakDuration << ", long "
                  << config.longBreakDuration << " every " << config.longBreakEvery << ", lead "
                  << config.preBreakWarningLead << ", idle " << config.idleThreshold;
}

namespace {

BreakEngineConfig config(double work, double rest, double longRest, std::int64_t every, double lead,
                         double idle) {
    return {work, rest, longRest, every, lead, idle};
}

TEST(Config, HasTheFallbacksOfAFreshInstallation) {
    EXPECT_EQ(BreakEngineConfig::fromDefaults(FakePreferences()), config(1200, 20, 300, 4, 10, 60));
}

TEST(Config, TakesEachKeyAsItIsStored) {
    FakePreferences preferences;
    preferences.set("workIntervalSeconds", 600.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(600, 20, 300, 4, 10, 30));
    preferences.set("breakDurationSeconds", 45.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(600, 45, 300, 4, 10, 30));
    preferences.set("longBreakDurationSeconds", 900.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(600, 45, 900, 4, 10, 30));
    preferences.set("longBreakEvery", 3);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(600, 45, 900, 3, 10, 30));
    preferences.set("preBreakWarningLeadSeconds", 0.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(600, 45, 900, 3, 0, 30));
}

TEST(Config, TakesAValueOutsideTheInterfacesRangeAsItStands) {
    FakePreferences preferences;
    preferences.set("workIntervalSeconds", 0.0);
    preferences.set("breakDurationSeconds", 1.5);
    preferences.set("longBreakDurationSeconds", -4.0);
    preferences.set("preBreakWarningLeadSeconds", 100'000.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(0, 1.5, -4, 4, 100'000, 30));
}

TEST(Config, LiftsLongBreakEveryToTwo) {
    FakePreferences preferences;
    for (const std::int64_t stored : {1, 0, -7, 2}) {
        preferences.set("longBreakEvery", stored);
        EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).longBreakEvery, 2) << stored;
    }
    preferences.set("longBreakEvery", 13);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).longBreakEvery, 13);
}

TEST(Config, IsFixedInTheFastCycle) {
    FakePreferences preferences;
    preferences.set("debugFastCycle", true);
    preferences.set("breakDurationSeconds", 45.0);
    preferences.set("longBreakDurationSeconds", 900.0);
    preferences.set("preBreakWarningLeadSeconds", 30.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences), config(10, 5, 8, 4, 3, 60));
}

TEST(Config, LongBreakEveryOfTheFastCycleIsAsItIsStoredButNeverZero) {
    FakePreferences preferences;
    preferences.set("debugFastCycle", true);
    const std::pair<std::int64_t, std::int64_t> rows[] = {{7, 7}, {2, 2}, {1, 1}, {0, 1}, {-3, -3}};
    for (const auto& [stored, effective] : rows) {
        preferences.set("longBreakEvery", stored);
        EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).longBreakEvery, effective) << stored;
    }
}

TEST(Config, IdleThresholdOfTheFastCycleFollowsTheStoredWorkInterval) {
    FakePreferences preferences;
    preferences.set("debugFastCycle", true);
    preferences.set("workIntervalSeconds", 1800.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).idleThreshold, 90.0);
    preferences.set("idleMode", "custom");
    preferences.set("idleThresholdSeconds", 15.0);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).idleThreshold, 15.0);
    preferences.set("idleMode", "off");
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).idleThreshold, std::numeric_limits<double>::max());
}

TEST(Config, AStoredFastCycleOfFalseIsTheChosenCycle) {
    FakePreferences preferences;
    preferences.set("debugFastCycle", false);
    EXPECT_EQ(BreakEngineConfig::fromDefaults(preferences).workInterval, 1200.0);
}

} // namespace
} // namespace kestrelfen
