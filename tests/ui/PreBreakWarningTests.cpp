#include "ContentTest.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningActions.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningContent.hpp"

namespace kestrelfen {
namespace {

using Control = PreBreakWarningControl;

class PreBreakWarningTest : public ContentTest {
  protected:
    PreBreakWarningContent content() { return PreBreakWarningContent::of(engine()); }
    PreBreakWarningActions actions() { return {engine(), platform.ports()}; }
    std::string state() { return stateText(engine().state()); }
};

TEST_F(PreBreakWarningTest, TellsHowLongIsLeft) {
    enterWarning(10);
    EXPECT_EQ(content().title, "Break in 10 seconds");
    EXPECT_EQ(content().counter, 10);
    EXPECT_EQ(content().caption, "Find a stopping point. Dismissing keeps the break.");
}

TEST_F(PreBreakWarningTest, RoundsUpAndKeepsThePlural) {
    enterWarning(0.2);
    EXPECT_EQ(content().title, "Break in 1 seconds");
    EXPECT_EQ(content().counter, 1);
}

TEST_F(PreBreakWarningTest, NeverGoesBelowZero) {
    beginBreak();
    EXPECT_EQ(content().counter, 0);
    EXPECT_EQ(content().title, "Break in 0 seconds");
}

TEST_F(PreBreakWarningTest, BarFillsUpAsTheBreakNears) {
    enterWarning(10);
    EXPECT_DOUBLE_EQ(content().fraction, 0.0);
    wait(2.5);
    EXPECT_DOUBLE_EQ(content().fraction, 0.25);
    wait(7);
    EXPECT_DOUBLE_EQ(content().fraction, 0.95);
}

TEST_F(PreBreakWarningTest, BarStaysWithinItsEnds) {
    start();
    EXPECT_DOUBLE_EQ(content().fraction, 0.0) << "20 minutes are left of a lead of 10 seconds";
    beginBreak();
    EXPECT_DOUBLE_EQ(content().fraction, 1.0);
}

TEST_F(PreBreakWarningTest, BarIsFullWithoutALead) {
    prefer("preBreakWarningLeadSeconds", 0.0);
    start();
    EXPECT_DOUBLE_EQ(content().fraction, 1.0);
    prefer("preBreakWarningLeadSeconds", -5.0);
    engine().startWorkInterval(now());
    EXPECT_DOUBLE_EQ(content().fraction, 1.0);
}

TEST_F(PreBreakWarningTest, OffersFourWaysOn) {
    enterWarning(10);
    EXPECT_EQ(content().controls,
              (std::vector<Control>{{Control::Kind::dismiss, "Dismiss", "Dismiss"},
                                    {Control::Kind::snooze, "+1", "Snooze 1 minute", SnoozeOption::one},
                                    {Control::Kind::snooze, "+3", "Snooze 3 minutes", SnoozeOption::three},
                                    {Control::Kind::snooze, "+5", "Snooze 5 minutes", SnoozeOption::five},
                                    {Control::Kind::startNow, "Start Now", "Start Now"}}));
    EXPECT_EQ(content().hint, "Snooze: +1, +3 or +5 minutes");
}

TEST_F(PreBreakWarningTest, SnoozesAndHintGoTogether) {
    setQuota("snoozesPerDay", 0);
    enterWarning(10);
    EXPECT_EQ(content().controls,
              (std::vector<Control>{{Control::Kind::dismiss, "Dismiss", "Dismiss"},
                                    {Control::Kind::startNow, "Start Now", "Start Now"}}));
    EXPECT_EQ(content().hint, std::nullopt);
}

TEST_F(PreBreakWarningTest, DismissingKeepsTheBreak) {
    enterWarning(7);
    actions().dismiss();
    EXPECT_EQ(state(), "working until 08:20:00");
    wait(1);
    EXPECT_EQ(state(), "working until 08:20:00");
    wait(6);
    EXPECT_EQ(state(), "onBreak until 08:20:20");
}

TEST_F(PreBreakWarningTest, SnoozesCountFromTheMomentOfTheClick) {
    const std::array ends{"08:20:55.5", "08:22:55.5", "08:24:55.5"};
    for (std::size_t index = 0; index < snoozeOptions.size(); ++index) {
        platform.clock.set(at("08:00:00"));
        create();
        enterWarning(5);
        pass(0.5);
        actions().snooze(snoozeOptions[index]);
        EXPECT_EQ(state(), std::string("working until ") + ends[index]);
    }
}

TEST_F(PreBreakWarningTest, StartNowBeginsTheBreakAtTheMomentOfTheClick) {
    enterWarning(5);
    pass(0.5);
    actions().startNow();
    EXPECT_EQ(state(), "onBreak until 08:20:15.5");
}

} // namespace
} // namespace kestrelfen
