#include "core/CadencePreset.hpp"
#include "platform/fake/FakePreferences.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

struct Row {
    CadencePreset preset;
    double work;
    double rest;
    std::string_view headline;
};

constexpr Row rows[] = {{CadencePreset::gentle, 1800, 20, "30 / 20"},
                        {CadencePreset::standard, 1200, 20, "20 / 20"},
                        {CadencePreset::strict, 900, 30, "15 / 30"}};

TEST(CadencePresets, EachHasItsLengthsAndHeadline) {
    for (const Row& row : rows) {
        EXPECT_EQ(workSeconds(row.preset), row.work);
        EXPECT_EQ(breakSeconds(row.preset), row.rest);
        EXPECT_EQ(headline(row.preset), row.headline);
    }
}

TEST(CadencePresets, ApplyWritesTheTwoLengthsAndNoOtherKey) {
    for (const Row& row : rows) {
        FakePreferences preferences;
        preferences.set("longBreakEvery", 3);
        apply(row.preset, preferences);
        const std::map<std::string, PreferenceValue> expected{{"longBreakEvery", std::int64_t{3}},
                                                              {"workIntervalSeconds", row.work},
                                                              {"breakDurationSeconds", row.rest}};
        EXPECT_EQ(preferences.all(), expected);
        EXPECT_EQ(currentCadencePreset(preferences), row.preset);
    }
}

TEST(CadencePresets, WithoutStoredLengthsTheCurrentOneIsStandard) {
    EXPECT_EQ(currentCadencePreset(FakePreferences()), CadencePreset::standard);
}

TEST(CadencePresets, OneStoredLengthIsReadWithTheFallbackOfTheOther) {
    FakePreferences preferences;
    preferences.set("workIntervalSeconds", 1800.0);
    EXPECT_EQ(currentCadencePreset(preferences), CadencePreset::gentle);
    preferences.remove("workIntervalSeconds");
    preferences.set("breakDurationSeconds", 30.0);
    EXPECT_EQ(currentCadencePreset(preferences), std::nullopt);
}

TEST(CadencePresets, AnyOtherPairOfLengthsIsNoPreset) {
    const std::pair<double, double> pairs[] = {{1200, 25}, {1200, 30}, {900, 20}, {1800, 30}, {1200.5, 20}};
    for (const auto& [work, rest] : pairs) {
        FakePreferences preferences;
        preferences.set("workIntervalSeconds", work);
        preferences.set("breakDurationSeconds", rest);
        EXPECT_EQ(currentCadencePreset(preferences), std::nullopt) << work << " / " << rest;
    }
}

TEST(CadencePresets, TheLongBreakTakesNoPart) {
    FakePreferences preferences;
    apply(CadencePreset::strict, preferences);
    preferences.set("longBreakDurationSeconds", 900.0);
    preferences.set("longBreakEvery", 7);
    EXPECT_EQ(currentCadencePreset(preferences), CadencePreset::strict);
}

} // namespace
} // namespace kestrelfen
