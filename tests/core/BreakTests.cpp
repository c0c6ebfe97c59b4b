#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class BreakTest : public EngineTest {
  protected:
    void beActive() { platform.programFocus.setActive(true); }
};

TEST_F(BreakTest, TheLineComesBeforeTheLockAndTheStateBeforeBoth) {
    prefer("lockOnBreakStart", true);
    start();
    tickAt("08:20:00");
    EXPECT_EQ(
        happened(),
        lines({"08:20:00 log break 20 s → ends 08:20", "08:20:00 lock in state onBreak until 08:20:20",
               "08:20:00 notify Look away — 20 seconds | Focus on something about 20 feet away for 20 s."}));
}

TEST_F(BreakTest, TheNotificationIsPostedOneTurnAfterTheBreakBegan) {
    start();
    engine().beginBreak(now());
    EXPECT_EQ(happened(), lines({"08:00:00 log break 20 s → ends 08:00"}));
    settle();
    EXPECT_EQ(happened(), lines({"08:00:00 notify Look away — 20 seconds | Focus on something about 20 feet "
                                 "away for 20 s."}));
}

TEST_F(BreakTest, TheScreenIsLockedOncePerBreakAtItsBeginning) {
    beActive();
    prefer("lockOnBreakStart", true);
    start();
    tickAt("08:20:00");
    forget();
    run(19);
    EXPECT_EQ(happened(), "");
}

TEST_F(BreakTest, AResumedBreakLocksAndNotifiesNotAgain) {
    prefer("lockOnBreakStart", true);
    startBreak();
    engine().pause(PauseReason::manual);
    forget();
    engine().resume(now());
    settle();
    EXPECT_EQ(happened(), lines({"08:20:00 log resumed break (0:20 left)"}));
}

TEST_F(BreakTest, WithoutTheWishTheScreenIsNeverLocked) {
    beActive();
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
    prefer("lockOnBreakStart", false);
    engine().beginBreak(now());
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(BreakTest, APersonInTheProgramGetsNoNotification) {
    beActive();
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(BreakTest, TheNotificationHasSoundWhenThePersonWantsIt) {
    prefer("soundOnBreakStart", true);
    start();
    tickAt("08:20:00");
    EXPECT_EQ(
        happened(),
        lines({"08:20:00 log break 20 s → ends 08:20",
               "08:20:00 notify Look away — 20 seconds | Focus on something about 20 feet away for 20 s. "
               "(sound)"}));
}

TEST_F(BreakTest, TheTitleStaysWhateverTheLengthAndTheBodyCarriesIt) {
    prefer("breakDurationSeconds", 90.0);
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 1 min 30 s → ends 08:21",
                                 "08:20:00 notify Look away — 20 seconds | Focus on something about 20 feet "
                                 "away for 1 min 30 s."}));
}

TEST_F(BreakTest, ALongBreakIsNotifiedInItsOwnWords) {
    prefer("longBreakEvery", 2);
    startBreak();
    tickAt("08:20:20");
    forget();
    tickAt("08:40:20");
    EXPECT_EQ(happened(),
              lines({"08:40:20 log long break 5 min → ends 08:45",
                     "08:40:20 notify Time for a long break | Stand up and step away for 5 min."}));
}

TEST_F(BreakTest, TheRecordHoldsTheDisplaysOfTheBreaksBeginning) {
    platform.displays.setCount(3);
    startBreak();
    platform.displays.setCount(1);
    tickAt("08:20:20");
    EXPECT_EQ(history.breaks().at(0).displayCount, 3);
    platform.displays.setCount(0);
    tickAt("08:40:20");
    tickAt("08:40:40");
    EXPECT_EQ(history.breaks().at(1).displayCount, 0);
    forget();
}

TEST_F(BreakTest, TheRecordHoldsTheTaskOfTheBreaksEnd) {
    startBreak();
    engine().setActiveTaskTitle("Write the letter");
    tickAt("08:20:20");
    EXPECT_EQ(history.breaks().at(0).creditedTaskTitle, "Write the letter");
    forget();
}

TEST_F(BreakTest, TheRecordIsTakenBeforeTheCallbackRuns) {
    startBreak();
    engine().setActiveTaskTitle("Write the letter");
    engine().onWorkIntervalCompleted = [&] {
        EXPECT_EQ(engine().breaksCompletedToday(), 1) << "counted before the callback";
        EXPECT_EQ(state(), "onBreak until 08:20:20") << "the callback comes before the next interval";
        EXPECT_EQ(engine().cyclePosition(), 1) << "and before the cadence advances";
        EXPECT_EQ(happened(), "") << "and before the line";
        engine().setActiveTaskTitle(std::nullopt);
    };
    tickAt("08:20:20");
    EXPECT_EQ(history.breaks().at(0).creditedTaskTitle, "Write the letter");
    EXPECT_EQ(engine().cyclePosition(), 2);
    forget();
}

TEST_F(BreakTest, BeginBreakMakesNoTestOfItsOwn) {
    beActive();
    create().beginBreak(now());
    EXPECT_EQ(state(), "onBreak until 08:00:20");
    EXPECT_EQ(happened(), lines({"08:00:00 log break 20 s → ends 08:00"}));
    pass(5);
    engine().beginBreak(now());
    EXPECT_EQ(state(), "onBreak until 08:00:25");
    EXPECT_EQ(happened(), lines({"08:00:05 log break 20 s → ends 08:00"}));
    settle();
}

TEST_F(BreakTest, ABreakBegunAgainIsRecordedFromItsSecondBeginning) {
    beActive();
    startBreak();
    pass(5);
    engine().beginBreak(now());
    tickAt("08:20:25");
    EXPECT_EQ(history.breaks().at(0).startedAt, at("08:20:05"));
    EXPECT_EQ(history.breaks().size(), 1U);
    forget();
}

TEST_F(BreakTest, BreakNowFromAPauseLeavesThePauseWithoutRecordingIt) {
    beActive();
    start();
    engine().pause(PauseReason::manual);
    forget();
    pass(60);
    engine().beginBreak(now());
    tickAt("08:01:20");
    EXPECT_EQ(happened(),
              lines({"08:01:00 log break 20 s → ends 08:01", "08:01:20 onWorkIntervalCompleted",
                     "08:01:20 log break complete (today: 1)",
                     "08:01:20 log work 20 min → break at 08:21 (next break long: false)",
                     "08:01:20 record completed short break from 08:01:00, 20 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
}

TEST_F(BreakTest, NeitherSmartPauseNorIdlenessIsConsultedDuringABreak) {
    beActive();
    startBreak();
    smartPause().samples.clear();
    smartPause().found = SmartPauseKind::meetings;
    platform.inputIdle.setAge(5000);
    run(19);
    EXPECT_TRUE(smartPause().samples.empty());
    EXPECT_EQ(state(), "onBreak until 08:20:20");
}

TEST_F(BreakTest, AClockSetBackDuringTheBreakRecordsNoNegativeLength) {
    beActive();
    startBreak();
    engine().completeBreak(at("08:10:00"));
    settle();
    EXPECT_EQ(history.breaks().at(0).actualSeconds, 0.0);
    forget();
}

TEST_F(BreakTest, ABreakCompletedWithoutABeginningIsRecordedFromItsEnd) {
    beActive();
    start();
    engine().completeBreak(now());
    settle();
    EXPECT_EQ(happened(),
              lines({"08:00:00 onWorkIntervalCompleted", "08:00:00 log break complete (today: 1)",
                     "08:00:00 log work 20 min → break at 08:20 (next break long: false)",
                     "08:00:00 record completed short break from 08:00:00, 0 of 1200 s, displays 0, task -, "
                     "day 2026-03-09"}));
}

TEST_F(BreakTest, ARecordedBreakLeavesNoBeginningBehind) {
    beActive();
    startBreak();
    tickAt("08:20:20");
    pass(60);
    engine().completeBreak(now());
    settle();
    EXPECT_EQ(history.breaks().at(1).startedAt, at("08:21:20"));
    forget();
}

} // namespace
} // namespace kestrelfen
