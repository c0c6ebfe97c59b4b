#include "PaneText.hpp"
#include "platform/fake/FakeLoginItem.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "ui/LaunchAtLogin.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"
#include "ui/SettingsWindowView/TimingPane.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kestrelfen {
namespace {

class TimingPaneTest : public testing::Test {
  protected:
    std::string told() { return paneText(TimingPane::content(preferences, launchAtLogin)); }

    std::string row(std::size_t index) {
        return rowText(TimingPane::content(preferences, launchAtLogin).rows().at(index));
    }

    bool step(const Stepper& stepper, StepDirection direction) {
        return SettingsControls(preferences).step(stepper, direction);
    }

    /// How often it can be stepped that way, up to two hundred times.
    int stepsTo(const Stepper& stepper, StepDirection direction) {
        int steps = 0;
        while (steps < 200 && step(stepper, direction)) {
            ++steps;
        }
        return steps;
    }

    FakePreferences preferences;
    FakeLoginItem loginItem;
    LaunchAtLogin launchAtLogin{loginItem};
};

TEST_F(TimingPaneTest, TellsEachLength) {
    EXPECT_EQ(told(), "Timing\n"
                      "Validated on commit, including the cross-field rules a single stepper can't express.\n"
                      "rows\n"
                      "  Work interval / 20 min - +\n"
                      "  Short break / 20 s - +\n"
                      "  Long break / must exceed the short break / 5 min - +\n"
                      "  Long break every / 4 cycles - +\n"
                      "  Warning HUD lead time / Shown before the overlay appears / 10 s - +\n"
                      "  Launch at login / SMAppService · also in the menu bar / off\n");
    EXPECT_EQ(preferences.all().size(), 0U);
}

TEST_F(TimingPaneTest, MinusAndPlusAreNamedAfterTheirRow) {
    const auto rows = TimingPane::content(preferences, launchAtLogin).rows();
    const auto& stepper = std::get<StepperState>(rows.at(1).control);
    EXPECT_EQ(stepper.decrementLabel, "Decrease Short break");
    EXPECT_EQ(stepper.incrementLabel, "Increase Short break");
}

TEST_F(TimingPaneTest, LengthsAreWrittenAsMinutesAndSeconds) {
    preferences.set("workIntervalSeconds", 90.0);
    preferences.set("breakDurationSeconds", std::int64_t{75});
    EXPECT_EQ(row(0), "Work interval / 1 min 30 s - +");
    EXPECT_EQ(row(1), "Short break / 1 min 15 s - +");
}

struct StepCase {
    const Stepper& stepper;
    double start;
    double up;
    double down;
    double minimum;
    double maximum;
};

TEST_F(TimingPaneTest, EachStepperKeepsToItsStepAndRange) {
    for (const auto& each : {StepCase{Steppers::workInterval, 1200, 1260, 1140, 60, 7200},
                             StepCase{Steppers::breakDuration, 20, 25, 15, 5, 300},
                             StepCase{Steppers::longBreakEvery, 4, 5, 3, 2, 12},
                             StepCase{Steppers::warningLead, 10, 15, 5, 0, 300}}) {
        const std::string key(each.stepper.key());
        EXPECT_EQ(each.stepper.value(preferences), each.start) << key;
        EXPECT_TRUE(step(each.stepper, StepDirection::up)) << key;
        EXPECT_EQ(each.stepper.value(preferences), each.up) << key;
        EXPECT_TRUE(step(each.stepper, StepDirection::down)) << key;
        EXPECT_TRUE(step(each.stepper, StepDirection::down)) << key;
        EXPECT_EQ(each.stepper.value(preferences), each.down) << key;
        EXPECT_LT(stepsTo(each.stepper, StepDirection::down), 200) << key;
        EXPECT_EQ(each.stepper.value(preferences), each.minimum) << key;
        EXPECT_LT(stepsTo(each.stepper, StepDirection::up), 200) << key;
        EXPECT_EQ(each.stepper.value(preferences), each.maximum) << key;
    }
}

TEST_F(TimingPaneTest, NumbersKeepTheirType) {
    step(Steppers::longBreakEvery, StepDirection::up);
    EXPECT_EQ(*preferences.object("longBreakEvery"), PreferenceValue(std::int64_t{5}));
    preferences.set("workIntervalSeconds", std::int64_t{600});
    step(Steppers::workInterval, StepDirection::up);
    EXPECT_EQ(*preferences.object("workIntervalSeconds"), PreferenceValue(660.0));
}

TEST_F(TimingPaneTest, LongBreakStepsByAMinuteDownToAMinuteMoreThanTheShortOne) {
    step(Steppers::longBreak, StepDirection::up);
    EXPECT_EQ(Steppers::longBreak.value(preferences), 360.0);
    EXPECT_EQ(stepsTo(Steppers::longBreak, StepDirection::down), 200);
    EXPECT_EQ(Steppers::longBreak.value(preferences), 80.0);
    EXPECT_EQ(stepsTo(Steppers::longBreak, StepDirection::up), 59);
    EXPECT_EQ(Steppers::longBreak.value(preferences), 3600.0);
}

TEST_F(TimingPaneTest, ButtonsEndAtTheEndsOfTheRange) {
    preferences.set("workIntervalSeconds", 7200.0);
    preferences.set("breakDurationSeconds", 5.0);
    preferences.set("longBreakEvery", std::int64_t{2});
    preferences.set("preBreakWarningLeadSeconds", 0.0);
    EXPECT_EQ(row(0), "Work interval / 120 min -");
    EXPECT_EQ(row(1), "Short break / 5 s +");
    EXPECT_EQ(row(3), "Long break every / 2 cycles +");
    EXPECT_EQ(row(4), "Warning HUD lead time / Shown before the overlay appears / 0 s +");
    EXPECT_FALSE(step(Steppers::workInterval, StepDirection::up));
    EXPECT_FALSE(step(Steppers::breakDuration, StepDirection::down));
    EXPECT_FALSE(step(Steppers::longBreakEvery, StepDirection::down));
    EXPECT_FALSE(step(Steppers::warningLead, StepDirection::down));
    EXPECT_EQ(preferences.all().size(), 4U);
}

TEST_F(TimingPaneTest, ValueOutsideTheRangeIsShownAndStepsBackIntoIt) {
    preferences.set("workIntervalSeconds", 10000.0);
    preferences.set("breakDurationSeconds", 1.0);
    preferences.set("longBreakEvery", std::int64_t{1});
    EXPECT_EQ(row(0), "Work interval / 166 min 40 s -");
    EXPECT_EQ(row(1), "Short break / 1 s +");
    EXPECT_EQ(row(3), "Long break every / 1 cycles +");
    EXPECT_FALSE(step(Steppers::workInterval, StepDirection::up));
    EXPECT_TRUE(step(Steppers::workInterval, StepDirection::down));
    EXPECT_EQ(Steppers::workInterval.value(preferences), 7200.0);
    EXPECT_TRUE(step(Steppers::breakDuration, StepDirection::up));
    EXPECT_EQ(Steppers::breakDuration.value(preferences), 6.0);
    EXPECT_TRUE(step(Steppers::longBreakEvery, StepDirection::up));
    EXPECT_EQ(Steppers::longBreakEvery.value(preferences), 2.0);
}

TEST_F(TimingPaneTest, CyclesAtTheEndsOfTheNumbers) {
    preferences.set("longBreakEvery", std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(row(3), "Long break every / 9223372036854775807 cycles -");
    EXPECT_TRUE(step(Steppers::longBreakEvery, StepDirection::down));
    EXPECT_EQ(*preferences.object("longBreakEvery"), PreferenceValue(std::int64_t{12}));
    preferences.set("longBreakEvery", std::numeric_limits<std::int64_t>::min());
    EXPECT_TRUE(step(Steppers::longBreakEvery, StepDirection::up));
    EXPECT_EQ(*preferences.object("longBreakEvery"), PreferenceValue(std::int64_t{2}));
}

TEST_F(TimingPaneTest, LongBreakThatIsNotLongerIsAmber) {
    preferences.set("longBreakDurationSeconds", 20.0);
    EXPECT_EQ(row(2), "Long break / amber: must exceed the short break / 20 s invalid - +");
    preferences.set("longBreakDurationSeconds", 21.0);
    EXPECT_EQ(row(2), "Long break / must exceed the short break / 21 s - +");
}

TEST_F(TimingPaneTest, LeadThatIsNotShorterThanTheWorkIsAmberAndSaysSo) {
    preferences.set("workIntervalSeconds", 60.0);
    preferences.set("preBreakWarningLeadSeconds", 60.0);
    EXPECT_EQ(row(4),
              "Warning HUD lead time / amber: Must be shorter than the work interval / 1 min invalid - +");
    preferences.set("preBreakWarningLeadSeconds", 59.0);
    EXPECT_EQ(row(4), "Warning HUD lead time / Shown before the overlay appears / 59 s - +");
}

TEST_F(TimingPaneTest, ShowingThePaneWritesNothing) {
    preferences.set("longBreakDurationSeconds", 5.0);
    preferences.set("preBreakWarningLeadSeconds", 5000.0);
    told();
    EXPECT_EQ(Steppers::longBreak.value(preferences), 5.0);
    EXPECT_EQ(Steppers::warningLead.value(preferences), 5000.0);
}

TEST_F(TimingPaneTest, ShortBreakLiftsTheLongOne) {
    preferences.set("breakDurationSeconds", 290.0);
    preferences.set("longBreakDurationSeconds", 300.0);
    EXPECT_TRUE(step(Steppers::breakDuration, StepDirection::up));
    EXPECT_EQ(Steppers::breakDuration.value(preferences), 295.0);
    EXPECT_EQ(Steppers::longBreak.value(preferences), 355.0);
    EXPECT_TRUE(step(Steppers::breakDuration, StepDirection::up));
    EXPECT_EQ(Steppers::longBreak.value(preferences), 360.0);
    EXPECT_FALSE(step(Steppers::breakDuration, StepDirection::up));
}

TEST_F(TimingPaneTest, ShortBreakFromOutsideCanLiftTheLongOneBeyondItsRange) {
    preferences.set("breakDurationSeconds", 9000.0);
    preferences.set("workIntervalSeconds", 600.0);
    EXPECT_TRUE(step(Steppers::workInterval, StepDirection::up));
    EXPECT_EQ(Steppers::longBreak.value(preferences), 9060.0);
}

TEST_F(TimingPaneTest, ShorterWorkBringsTheLeadDown) {
    preferences.set("workIntervalSeconds", 120.0);
    preferences.set("preBreakWarningLeadSeconds", 120.0);
    EXPECT_TRUE(step(Steppers::workInterval, StepDirection::down));
    EXPECT_EQ(Steppers::workInterval.value(preferences), 60.0);
    EXPECT_EQ(Steppers::warningLead.value(preferences), 59.0);
    EXPECT_EQ(row(4), "Warning HUD lead time / Shown before the overlay appears / 59 s - +");
    // A step up is taken back at once.
    EXPECT_TRUE(step(Steppers::warningLead, StepDirection::up));
    EXPECT_EQ(Steppers::warningLead.value(preferences), 59.0);
}

TEST_F(TimingPaneTest, LeadIsNeverBelowNothing) {
    preferences.set("workIntervalSeconds", -100.0);
    preferences.set("preBreakWarningLeadSeconds", 30.0);
    EXPECT_TRUE(step(Steppers::warningLead, StepDirection::up));
    EXPECT_EQ(Steppers::warningLead.value(preferences), 0.0);
}

TEST_F(TimingPaneTest, WhatNeedsNoChangeIsNotWritten) {
    step(Steppers::workInterval, StepDirection::up);
    EXPECT_EQ(preferences.object("longBreakDurationSeconds"), nullptr);
    EXPECT_EQ(preferences.object("preBreakWarningLeadSeconds"), nullptr);
}

TEST_F(TimingPaneTest, CycleDoesNotReconcile) {
    preferences.set("longBreakDurationSeconds", 5.0);
    step(Steppers::longBreakEvery, StepDirection::up);
    EXPECT_EQ(Steppers::longBreak.value(preferences), 5.0);
}

TEST_F(TimingPaneTest, FailedLoginItemIsToldUnderTheGroup) {
    loginItem.setFailure("no service");
    launchAtLogin.set(true);
    EXPECT_EQ(row(5), "Launch at login / SMAppService · also in the menu bar / off");
    const auto content = TimingPane::content(preferences, launchAtLogin);
    EXPECT_EQ(content.blocks.back().kind, PaneBlock::Kind::message);
    EXPECT_EQ(content.blocks.back().tint, "danger");
    EXPECT_EQ(content.notes(), std::vector<std::string>{"Couldn't update the login item: no service"});
    loginItem.setFailure({});
    launchAtLogin.set(true);
    EXPECT_EQ(row(5), "Launch at login / SMAppService · also in the menu bar / on");
    EXPECT_EQ(TimingPane::content(preferences, launchAtLogin).notes().size(), 0U);
}

} // namespace
} // namespace kestrelfen
