#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class WarningTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(WarningTest, TheWarningStartsWithExactlyTheLeadLeftAndNotBefore) {
    start();
    tickAt("08:19:49.999999");
    EXPECT_EQ(state(), "working until 08:20:00");
    tickAt("08:19:50");
    EXPECT_EQ(state(), "preBreakWarning");
    EXPECT_EQ(engine().nextBreakAt(), at("08:20:00"));
    EXPECT_EQ(engine().currentPhaseTotal(), 1200.0);
    EXPECT_EQ(happened(), lines({"08:19:50 log pre-break warning (0:10 to break)"}));
}

TEST_F(WarningTest, TheLineGivesTheTimeLeftRoundedUpward) {
    start();
    tickAt("08:19:52.6");
    EXPECT_EQ(happened(), lines({"08:19:52.6 log pre-break warning (0:08 to break)"}));
}

TEST_F(WarningTest, TheWarningEndsInTheBreakAtTheDueDate) {
    start();
    tickAt("08:19:50");
    forget();
    tickAt("08:19:59.999999");
    EXPECT_EQ(state(), "preBreakWarning");
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(WarningTest, WithALeadOfZeroThereIsNoWarning) {
    prefer("preBreakWarningLeadSeconds", 0.0);
    start();
    run(1199);
    EXPECT_EQ(happened(), "");
    tickAt("08:19:59.999999");
    EXPECT_EQ(happened(), "");
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(WarningTest, ALeadLongerThanTheIntervalWarnsOnTheFirstTick) {
    prefer("preBreakWarningLeadSeconds", 5000.0);
    start();
    EXPECT_EQ(state(), "working until 08:20:00");
    tick();
    EXPECT_EQ(happened(), lines({"08:00:00 log pre-break warning (20:00 to break)"}));
}

TEST_F(WarningTest, ADismissedWarningGoesAwayWithoutALineAndDoesNotComeBackInTheInterval) {
    start();
    tickAt("08:19:50");
    forget();
    engine().dismissPreBreakWarning();
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(engine().nextBreakAt(), at("08:20:00"));
    run(9);
    EXPECT_EQ(happened(), "");
    run(1);
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(WarningTest, ADismissalSpendsNoQuota) {
    prefer("snoozesPerDay", 1);
    prefer("snoozesPerBreak", 1);
    start();
    tickAt("08:19:50");
    engine().dismissPreBreakWarning();
    EXPECT_TRUE(engine().canPostpone());
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 0);
    EXPECT_EQ(platform.preferences.object("snoozesPerDay.count"), nullptr);
    forget();
}

TEST_F(WarningTest, TheIntervalAfterADismissedWarningWarnsAgain) {
    start();
    tickAt("08:19:50");
    engine().dismissPreBreakWarning();
    tickAt("08:20:00");
    tickAt("08:20:20");
    forget();
    tickAt("08:40:10");
    EXPECT_EQ(happened(), lines({"08:40:10 log pre-break warning (0:10 to break)"}));
}

TEST_F(WarningTest, DismissingWithoutAWarningDoesNothingAndTheWarningStillComes) {
    start();
    tickAt("08:19:49");
    engine().dismissPreBreakWarning();
    EXPECT_EQ(state(), "working until 08:20:00");
    tickAt("08:19:50");
    EXPECT_EQ(happened(), lines({"08:19:50 log pre-break warning (0:10 to break)"}));
}

TEST_F(WarningTest, AfterADismissalASnoozeOfTheBreakWarnsAgain) {
    start();
    tickAt("08:19:50");
    engine().dismissPreBreakWarning();
    tickAt("08:20:00");
    engine().snooze(60, now());
    forget();
    tickAt("08:20:50");
    EXPECT_EQ(happened(), lines({"08:20:50 log pre-break warning (0:10 to break)"}));
}

TEST_F(WarningTest, AfterADismissalAPostponeWarnsAgain) {
    start();
    tickAt("08:19:50");
    engine().dismissPreBreakWarning();
    EXPECT_TRUE(engine().postponeNextBreak(60, now()));
    forget();
    tickAt("08:20:40");
    EXPECT_EQ(happened(), lines({"08:20:40 log pre-break warning (0:10 to break)"}));
}

TEST_F(WarningTest, AfterADismissalAnAdvanceSkipWarnsAgain) {
    start();
    tickAt("08:19:50");
    engine().dismissPreBreakWarning();
    engine().skipNextBreak();
    forget();
    tickAt("08:39:40");
    EXPECT_EQ(happened(), lines({"08:39:40 log pre-break warning (0:10 to break)"}));
}

TEST_F(WarningTest, ADismissalIsForgottenWhenABreakBeginsByHand) {
    start();
    tickAt("08:19:50");
    engine().dismissPreBreakWarning();
    engine().beginBreak(now());
    engine().snooze(11, now());
    forget();
    tickAt("08:19:51");
    EXPECT_EQ(happened(), lines({"08:19:51 log pre-break warning (0:10 to break)"}));
}

} // namespace
} // namespace kestrelfen
