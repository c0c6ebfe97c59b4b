#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class LoggingTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(LoggingTest, TheFastCyclePrintsEachLineAfterLoggingIt) {
    prefer("debugFastCycle", true);
    start();
    run(15);
    EXPECT_EQ(
        happened(),
        lines({"08:00:07 log pre-break warning (0:03 to break)",
               "08:00:07 stdout [Kestrelfen] 08:00:07 pre-break warning (0:03 to break)",
               "08:00:10 log break 5 s → ends 08:00",
               "08:00:10 stdout [Kestrelfen] 08:00:10 break 5 s → ends 08:00",
               "08:00:15 onWorkIntervalCompleted", "08:00:15 log break complete (today: 1)",
               "08:00:15 stdout [Kestrelfen] 08:00:15 break complete (today: 1)",
               "08:00:15 log work 10 s → break at 08:00 (next break long: false)",
               "08:00:15 stdout [Kestrelfen] 08:00:15 work 10 s → break at 08:00 (next break long: false)",
               "08:00:15 record completed short break from 08:00:10, 5 of 5 s, displays 1, task -, "
               "day 2026-03-09"}));
}

TEST_F(LoggingTest, TheFastCyclesLongBreakLastsEightSeconds) {
    prefer("debugFastCycle", true);
    prefer("longBreakEvery", 2);
    start();
    run(24);
    forget();
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:25 log long break 8 s → ends 08:00",
                                 "08:00:25 stdout [Kestrelfen] 08:00:25 long break 8 s → ends 08:00"}));
    run(8);
    EXPECT_EQ(engine().breaksCompletedToday(), 2);
    EXPECT_EQ(history.breaks().at(1).plannedSeconds, 8.0);
    forget();
}

TEST_F(LoggingTest, ThePrintedTimeIsTheLocalTimeOfNowAndNotOfTheClock) {
    platform.calendar.setZone("Asia/Tokyo");
    prefer("debugFastCycle", true);
    start();
    tickAt("08:00:01");
    pass(2);
    engine().logTransition("hello");
    EXPECT_EQ(happened(), lines({"08:00:03 log hello", "08:00:03 stdout [Kestrelfen] 17:00:01 hello"}));
}

TEST_F(LoggingTest, TheChoiceToPrintIsThatOfTheCreation) {
    start();
    prefer("debugFastCycle", true);
    engine().skipNextBreak();
    EXPECT_EQ(happened(), lines({"08:00:00 log next break skipped (today: 1)",
                                 "08:00:00 log work 10 s → break at 08:00 (next break long: false)"}));
    create();
    prefer("debugFastCycle", false);
    engine().logTransition("hello");
    EXPECT_EQ(happened(), lines({"08:00:00 log hello", "08:00:00 stdout [Kestrelfen] 08:00:00 hello"}));
}

TEST_F(LoggingTest, WithoutTheFastCycleNothingIsPrinted) {
    create().logTransition("hello");
    EXPECT_EQ(happened(), lines({"08:00:00 log hello"}));
}

TEST_F(LoggingTest, LinesGiveTimesOfDayInTheLocalZone) {
    platform.calendar.setZone("Europe/Berlin");
    create().start();
    engine().beginBreak(now());
    EXPECT_EQ(happened(), lines({"08:00:00 monitor starts",
                                 "08:00:00 log work 20 min → break at 09:20 (next break long: false)",
                                 "08:00:00 log break 20 s → ends 09:00"}));
    settle();
}

TEST_F(LoggingTest, TheDaysLineOfAHydrationIsInTheLocalZone) {
    platform.calendar.setZone("Asia/Tokyo");
    create().hydrate();
    settle();
    EXPECT_EQ(happened(), lines({"08:00:00 query day 2026-03-08 15:00:00",
                                 "08:00:00 log hydrated day 2026-03-09: 0 completed, 0 skipped"}));
}

} // namespace
} // namespace kestrelfen
