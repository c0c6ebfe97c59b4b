#include "PaneText.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "ui/OnboardingView/OnboardingContent.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Page = OnboardingContent::Page;

class OnboardingTest : public testing::Test {
  protected:
    OnboardingContent content() { return OnboardingContent::of(platform.preferences, onboarding); }
    std::string row(std::size_t index) { return rowText(content().rows.at(index)); }
    std::string selectedPresets() {
        std::string names;
        for (const auto& card : content().presets) {
            names += card.isSelected ? card.label : "";
        }
        return names;
    }
    double stored(std::string_view key) { return platform.preferences.real(key).value_or(-1); }

    FakePlatform platform;
    int finished = 0;
    Onboarding onboarding{platform.ports(), [this] { ++finished; }};
};

TEST_F(OnboardingTest, WelcomePromises) {
    EXPECT_EQ(content().page, OnboardingPage::welcome);
    EXPECT_EQ(content().welcome,
              (Page{"Welcome to Kestrelfen",
                    "Every 20 minutes, look at something 20 feet away for 20 seconds. Kestrelfen keeps the "
                    "clock so you don't have to.",
                    "Set Up My Cadence", "Use the Defaults — 20 / 20 / 5"}));
    const auto promises = content().promises;
    EXPECT_EQ(promises[0].title, "It can't drift");
    EXPECT_EQ(promises[0].line,
              "The timer reads the wall clock, so a closed lid doesn't shift the schedule.");
    EXPECT_EQ(promises[1].title, "It won't nag you while you're away");
    EXPECT_EQ(promises[1].line, "Sleep, screen lock, display sleep and idle all pause it automatically.");
    EXPECT_EQ(promises[2].title, "It keeps its own receipts");
    EXPECT_EQ(promises[2].line,
              "Break history and honest screen time, stored locally. No permissions required.");
}

TEST_F(OnboardingTest, CadenceOffersThePresetsAndThreeRows) {
    onboarding.setUp();
    EXPECT_EQ(content().page, OnboardingPage::cadence);
    EXPECT_EQ(content().cadence, (Page{"Pick a Cadence", "Every value here is adjustable later in Settings.",
                                       "Start the First Interval", "Back"}));
    std::string cards;
    for (const auto& card : content().presets) {
        cards +=
            card.label + " " + card.headline + " " + card.note + (card.isSelected ? " selected\n" : "\n");
    }
    EXPECT_EQ(cards, "Gentle 30 / 20 min work / sec break\nStandard 20 / 20 the 20-20-20 rule selected\n"
                     "Strict 15 / 30 min work / sec break\n");
    EXPECT_EQ(row(0), "Long break every / 5 min break on the fourth cycle / 4 cycles - +");
    EXPECT_EQ(row(1), "Allow skipping a break / Skips are recorded as skips, not completed breaks / on");
    EXPECT_EQ(row(2), "Launch at login / Registered through SMAppService / off");
    EXPECT_EQ(content().error, std::nullopt);
    EXPECT_EQ(platform.preferences.all().size(), 0U);
}

TEST_F(OnboardingTest, WhatCannotBeSeenIsSpoken) {
    EXPECT_EQ(content().spokenPage, "Page 1 of 2");
    onboarding.setUp();
    EXPECT_EQ(content().spokenPage, "Page 2 of 2");
    EXPECT_EQ(content().presets.at(0).spokenDetail(), "30 / 20, min work / sec break");
}

TEST_F(OnboardingTest, CycleIsSpelledUpToTheFourth) {
    struct Case {
        std::int64_t every;
        const char* cycle;
    };
    for (const auto& [every, cycle] :
         {Case{1, "first"}, Case{2, "second"}, Case{3, "third"}, Case{4, "fourth"}, Case{5, "5th"},
          Case{12, "12th"}, Case{0, "0th"}, Case{-1, "-1th"}}) {
        platform.preferences.set("longBreakEvery", every);
        EXPECT_EQ(content().rows[0].caption, "5 min break on the " + std::string(cycle) + " cycle");
    }
}

TEST_F(OnboardingTest, LongBreakOfTheCaptionIsConstant) {
    platform.preferences.set("longBreakDurationSeconds", 600.0);
    EXPECT_EQ(content().rows[0].caption, "5 min break on the fourth cycle");
}

TEST_F(OnboardingTest, StepperStaysBetweenTwoAndTwelve) {
    SettingsControls controls(platform.preferences);
    while (controls.step(Steppers::longBreakEvery, StepDirection::down)) {
    }
    EXPECT_EQ(row(0), "Long break every / 5 min break on the second cycle / 2 cycles +");
    while (controls.step(Steppers::longBreakEvery, StepDirection::up)) {
    }
    EXPECT_EQ(row(0), "Long break every / 5 min break on the 12th cycle / 12 cycles -");
}

TEST_F(OnboardingTest, DefaultsWriteTheTwoLengthsAndFinish) {
    platform.preferences.set("longBreakEvery", std::int64_t{7});
    onboarding.useDefaults();
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(platform.preferences.all(),
              (std::map<std::string, PreferenceValue>{{"breakDurationSeconds", 20.0},
                                                      {"longBreakEvery", std::int64_t{7}},
                                                      {"workIntervalSeconds", 1200.0}}));
}

TEST_F(OnboardingTest, PresetIsWrittenWhenThePersonStarts) {
    onboarding.setUp();
    onboarding.choosePreset(CadencePreset::strict);
    EXPECT_EQ(selectedPresets(), "Strict");
    EXPECT_EQ(platform.preferences.all().size(), 0U);
    onboarding.start();
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(stored("workIntervalSeconds"), 900.0);
    EXPECT_EQ(stored("breakDurationSeconds"), 30.0);
}

TEST_F(OnboardingTest, BackForgetsPresetAndMessage) {
    platform.loginItem.setFailure("refused");
    onboarding.setUp();
    onboarding.choosePreset(CadencePreset::gentle);
    onboarding.launchAtLogin().set(true);
    EXPECT_EQ(content().error, "Couldn't update the login item: refused");
    EXPECT_EQ(row(2), "Launch at login / Registered through SMAppService / off");
    onboarding.back();
    EXPECT_EQ(content().page, OnboardingPage::welcome);
    onboarding.setUp();
    EXPECT_EQ(selectedPresets(), "Standard");
    EXPECT_EQ(content().error, std::nullopt);
}

TEST_F(OnboardingTest, WhatStepperAndSwitchesDidIsKeptWithoutFinishing) {
    SettingsControls controls(platform.preferences);
    onboarding.setUp();
    controls.step(Steppers::longBreakEvery, StepDirection::up);
    const SettingChoice& skip = *SettingChoice::find("showSkipButton");
    controls.choose(skip, *skip.option("false"));
    onboarding.launchAtLogin().set(true);
    onboarding.startOver();
    EXPECT_EQ(content().page, OnboardingPage::welcome);
    EXPECT_EQ(row(0), "Long break every / 5 min break on the 5th cycle / 5 cycles - +");
    EXPECT_EQ(row(1), "Allow skipping a break / Skips are recorded as skips, not completed breaks / off");
    EXPECT_EQ(row(2), "Launch at login / Registered through SMAppService / on");
    EXPECT_TRUE(platform.loginItem.isEnabled());
    EXPECT_EQ(finished, 0);
}

TEST_F(OnboardingTest, TellsOfChanges) {
    int changes = 0;
    const Subscription subscription = onboarding.observe([&changes] { ++changes; });
    onboarding.setUp();
    EXPECT_EQ(changes, 1);
    onboarding.choosePreset(CadencePreset::gentle);
    EXPECT_EQ(changes, 2);
    onboarding.launchAtLogin().set(true);
    EXPECT_EQ(changes, 3);
}

} // namespace
} // namespace kestrelfen
