#include "PaneText.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "ui/SettingsWindowView/PausingPane.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class PausingPaneTest : public testing::Test {
  protected:
    PaneContent content() const { return PausingPane::content(preferences); }
    std::string row(std::size_t index) const { return rowText(content().rows().at(index)); }
    std::size_t notes() const { return content().notes().size(); }

    void choose(std::string_view key, std::string_view word) {
        const SettingChoice& choice = *SettingChoice::find(key);
        SettingsControls(preferences).choose(choice, *choice.option(word));
    }

    FakePreferences preferences;
};

TEST_F(PausingPaneTest, TellsEachRow) {
    EXPECT_EQ(
        paneText(content()),
        "Pausing\n"
        "Time spent paused is never counted as screen time, whichever trigger stopped the clock.\n"
        "# Going idle\n"
        "rows\n"
        "  Pause when I step away / Automatic — 1 min at your 20 min work interval / "
        "accent Off [Automatic] Custom\n"
        "# Coming back\n"
        "rows\n"
        "  Resume automatically / Off means an automatic pause waits for you to resume it by hand / on\n"
        "note / A manual pause from the menu bar always works, and is never lifted by a system event.\n"
        "# System events\n"
        "rows\n"
        "  When the screen locks / Lock screen or fast user switch / on\n"
        "  When the display sleeps / Displays turn off but the Mac stays awake / on\n"
        "  When the Mac sleeps / Sleep, or closing the lid / on\n");
    EXPECT_EQ(preferences.all().size(), 0U);
}

TEST_F(PausingPaneTest, AutomaticFollowsTheWorkIntervalWithinBounds) {
    struct Case {
        double work;
        const char* caption;
    };
    for (const auto& [work, caption] : {Case{7200, "Automatic — 2 min at your 120 min work interval"},
                                        Case{1800, "Automatic — 1 min 30 s at your 30 min work interval"},
                                        Case{600, "Automatic — 30 s at your 10 min work interval"},
                                        Case{60, "Automatic — 30 s at your 1 min work interval"}}) {
        preferences.set("workIntervalSeconds", work);
        EXPECT_EQ(content().rows().at(0).caption, caption);
    }
}

TEST_F(PausingPaneTest, OffSaysThatTheTimerGoesOn) {
    choose("idleMode", "off");
    EXPECT_EQ(row(0), "Pause when I step away / The timer keeps running while you're away / "
                      "accent [Off] Automatic Custom");
    EXPECT_EQ(preferences.object("idleThresholdSeconds"), nullptr);
    EXPECT_EQ(notes(), 1U);
}

TEST_F(PausingPaneTest, OlderChoiceAgainstIdlePausesStillShows) {
    preferences.set("pauseOnIdle", false);
    EXPECT_NE(row(0).find("[Off]"), std::string::npos);
}

TEST_F(PausingPaneTest, CustomStartsWhereAutomaticStood) {
    preferences.set("workIntervalSeconds", 900.0);
    choose("idleMode", "custom");
    EXPECT_EQ(row(0), "Pause when I step away / You choose how long counts as away / "
                      "accent Off Automatic [Custom]");
    EXPECT_EQ(row(1), "Idle after / No input for this long counts as away / 45 s - +");
    EXPECT_EQ(*preferences.object("idleThresholdSeconds"), PreferenceValue(45.0));
    EXPECT_EQ(content().rows().size(), 6U);
}

TEST_F(PausingPaneTest, CustomLeavesAnExistingThresholdAlone) {
    preferences.set("idleThresholdSeconds", 300.0);
    choose("idleMode", "custom");
    EXPECT_EQ(row(1), "Idle after / No input for this long counts as away / 5 min - +");
    preferences.set("idleThresholdSeconds", 0.0);
    choose("idleMode", "custom");
    EXPECT_EQ(row(1), "Idle after / No input for this long counts as away / 0 s +");
}

TEST_F(PausingPaneTest, CustomWithoutAThresholdShowsAMinute) {
    preferences.set("idleMode", std::string("custom"));
    EXPECT_EQ(row(1), "Idle after / No input for this long counts as away / 1 min - +");
}

TEST_F(PausingPaneTest, ThresholdStepsByFifteenSecondsWithinItsRange) {
    SettingsControls controls(preferences);
    preferences.set("idleMode", std::string("custom"));
    EXPECT_TRUE(controls.step(Steppers::idleThreshold, StepDirection::up));
    EXPECT_EQ(*preferences.object("idleThresholdSeconds"), PreferenceValue(75.0));
    while (controls.step(Steppers::idleThreshold, StepDirection::down)) {
    }
    EXPECT_EQ(row(1), "Idle after / No input for this long counts as away / 15 s +");
    while (controls.step(Steppers::idleThreshold, StepDirection::up)) {
    }
    EXPECT_EQ(row(1), "Idle after / No input for this long counts as away / 30 min -");
}

TEST_F(PausingPaneTest, ThresholdIsThereInCustomOnlyAndReconcilesNothing) {
    SettingsControls controls(preferences);
    preferences.set("longBreakDurationSeconds", 5.0);
    EXPECT_FALSE(controls.step(Steppers::idleThreshold, StepDirection::up));
    EXPECT_EQ(preferences.object("idleThresholdSeconds"), nullptr);
    choose("idleMode", "custom");
    EXPECT_TRUE(controls.step(Steppers::idleThreshold, StepDirection::up));
    EXPECT_EQ(Steppers::longBreak.value(preferences), 5.0);
}

TEST_F(PausingPaneTest, WithEveryTriggerOffItWarnsAtOnceUntilOneReturns) {
    choose("idleMode", "off");
    choose("pauseOnScreenLock", "false");
    choose("pauseOnDisplaySleep", "false");
    EXPECT_EQ(notes(), 1U);
    choose("pauseOnSystemSleep", "false");
    EXPECT_EQ(content().blocks.front().kind, PaneBlock::Kind::callout);
    EXPECT_EQ(content().blocks.front().tint, "amber");
    EXPECT_EQ(content().notes().front(),
              "Never pauses: With every trigger off, the timer keeps running while you're away and screen "
              "time will overcount.");
    struct Trigger {
        const char* key;
        const char* on;
        const char* off;
    };
    for (const auto& [key, on, off] :
         {Trigger{"pauseOnScreenLock", "true", "false"}, Trigger{"pauseOnDisplaySleep", "true", "false"},
          Trigger{"pauseOnSystemSleep", "true", "false"}, Trigger{"idleMode", "automatic", "off"},
          Trigger{"idleMode", "custom", "off"}}) {
        choose(key, on);
        EXPECT_EQ(notes(), 1U) << key;
        choose(key, off);
        EXPECT_EQ(notes(), 2U) << key;
    }
    choose("resumeAutomatically", "false");
    EXPECT_EQ(notes(), 2U);
    EXPECT_EQ(row(1),
              "Resume automatically / Off means an automatic pause waits for you to resume it by hand / "
              "off");
}

} // namespace
} // namespace kestrelfen
