#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class WorkCycleTest : public EngineTest {};

TEST_F(WorkCycleTest, AWorkIntervalIsWarnedEndedByABreakAndFollowedByTheNext) {
    start();
    run(1220);
    EXPECT_EQ(
        happened(),
        lines({"08:19:50 log pre-break warning (0:10 to break)", "08:20:00 log break 20 s → ends 08:20",
               "08:20:00 notify Look away — 20 seconds | Focus on something about 20 feet away for 20 s.",
               "08:20:20 onWorkIntervalCompleted", "08:20:20 log break complete (today: 1)",
               "08:20:20 log work 20 min → break at 08:40 (next break long: false)",
               "08:20:20 record completed short break from 08:20:00, 20 of 20 s, displays 1, task -, "
               "day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 08:40:20");
}

TEST_F(WorkCycleTest, EveryFourthBreakIsLong) {
    platform.programFocus.setActive(true);
    prefer("preBreakWarningLeadSeconds", 0.0);
    start();
    run(3 * 1220);
    forget();
    run(1200);
    EXPECT_EQ(happened(), lines({"09:21:00 log long break 5 min → ends 09:26"}));
    run(300);
    EXPECT_EQ(happened(),
              lines({"09:26:00 onWorkIntervalCompleted", "09:26:00 log break complete (today: 4)",
                     "09:26:00 log work 20 min → break at 09:46 (next break long: false)",
                     "09:26:00 record completed long break from 09:21:00, 300 of 300 s, displays 1, task -, "
                     "day 2026-03-09"}));
}

TEST_F(WorkCycleTest, TheLineBeforeALongBreakSaysSo) {
    platform.programFocus.setActive(true);
    prefer("preBreakWarningLeadSeconds", 0.0);
    prefer("longBreakEvery", 2);
    start();
    run(1220);
    EXPECT_EQ(happened(),
              lines({"08:20:00 log break 20 s → ends 08:20", "08:20:20 onWorkIntervalCompleted",
                     "08:20:20 log break complete (today: 1)",
                     "08:20:20 log work 20 min → break at 08:40 (next break long: true)",
                     "08:20:20 record completed short break from 08:20:00, 20 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
}

TEST_F(WorkCycleTest, ATickAtTheDueDateBeginsTheBreakAndOneJustBeforeDoesNot) {
    start();
    tickAt("08:19:59.999999");
    EXPECT_EQ(happened(), lines({"08:19:59.999999 log pre-break warning (0:01 to break)"}));
    tickAt("08:20:00");
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    forget();
}

TEST_F(WorkCycleTest, ADueBreakBeatsTheWarning) {
    platform.programFocus.setActive(true);
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(WorkCycleTest, ATickAtTheEndCompletesTheBreakAndOneJustBeforeDoesNot) {
    startBreak();
    tickAt("08:20:19.999999");
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    EXPECT_EQ(happened(), "");
    tickAt("08:20:20");
    EXPECT_EQ(state(), "working until 08:40:20");
    forget();
}

TEST_F(WorkCycleTest, ALateTickBeginsAndEndsPhasesAtItsOwnDate) {
    start();
    tickAt("08:20:00.75");
    EXPECT_EQ(state(), "onBreak until 08:20:20.75");
    tickAt("08:20:21.5");
    EXPECT_EQ(state(), "working until 08:40:21.5");
    EXPECT_EQ(history.breaks().at(0).actualSeconds, 20.75);
    EXPECT_EQ(history.breaks().at(0).plannedSeconds, 20.0);
    forget();
}

TEST_F(WorkCycleTest, AChangedSettingIsInForceFromTheNextWorkIntervalOn) {
    platform.programFocus.setActive(true);
    prefer("preBreakWarningLeadSeconds", 0.0);
    start();
    prefer("breakDurationSeconds", 45.0);
    prefer("workIntervalSeconds", 60.0);
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
    prefer("breakDurationSeconds", 50.0);
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    tickAt("08:20:20");
    forget();
    tickAt("08:21:20");
    EXPECT_EQ(happened(), lines({"08:21:20 log break 50 s → ends 08:22"}));
}

TEST_F(WorkCycleTest, ANewWorkIntervalHasNoBreakStartedAndANewTotal) {
    startBreak();
    EXPECT_EQ(engine().nextBreakAt(), std::nullopt);
    EXPECT_EQ(engine().currentPhaseTotal(), 20.0);
    tickAt("08:20:20");
    EXPECT_EQ(engine().nextBreakAt(), at("08:40:20"));
    EXPECT_EQ(engine().currentPhaseTotal(), 1200.0);
    forget();
}

TEST_F(WorkCycleTest, EveryTickEndsWithOnTickWhateverItDid) {
    tracesTicks = true;
    platform.programFocus.setActive(true);
    start();
    for (const char* moment : {"08:19:50", "08:20:00", "08:20:20"}) {
        tickAt(moment);
    }
    EXPECT_EQ(happened(),
              lines({"08:19:50 log pre-break warning (0:10 to break)", "08:19:50 onTick 08:19:50",
                     "08:20:00 log break 20 s → ends 08:20", "08:20:00 onTick 08:20:00",
                     "08:20:20 onWorkIntervalCompleted", "08:20:20 log break complete (today: 1)",
                     "08:20:20 log work 20 min → break at 08:40 (next break long: false)",
                     "08:20:20 onTick 08:20:20",
                     "08:20:20 record completed short break from 08:20:00, 20 of 20 s, displays 1, task -, "
                     "day 2026-03-09"}));
    engine().pause(PauseReason::manual);
    forget();
    tickAt("08:20:21");
    EXPECT_EQ(happened(), lines({"08:20:21 onTick 08:20:21"}));
}

TEST_F(WorkCycleTest, OnTickSeesTheFinishedTick) {
    start();
    std::string seen;
    engine().onTick = [&](Date date) { seen = momentText(date) + " " + state(); };
    tickAt("08:20:00");
    EXPECT_EQ(seen, "08:20:00 onBreak until 08:20:20");
    forget();
}

TEST_F(WorkCycleTest, AnIntervalOfZeroSecondsBeginsItsBreakOnTheNextTick) {
    platform.programFocus.setActive(true);
    prefer("workIntervalSeconds", 0.0);
    create().start();
    tick();
    EXPECT_EQ(happened(), lines({"08:00:00 monitor starts",
                                 "08:00:00 log work 0 s → break at 08:00 (next break long: false)",
                                 "08:00:00 log break 20 s → ends 08:00"}));
}

TEST_F(WorkCycleTest, WithoutAStoreTheCycleRunsAllTheSame) {
    hasStore = false;
    platform.programFocus.setActive(true);
    start();
    tickAt("08:20:00");
    tickAt("08:20:20");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20", "08:20:20 onWorkIntervalCompleted",
                                 "08:20:20 log break complete (today: 1)",
                                 "08:20:20 log work 20 min → break at 08:40 (next break long: false)"}));
    EXPECT_EQ(engine().breaksCompletedToday(), 1);
}

TEST_F(WorkCycleTest, WithoutCallbacksTheCycleRunsAllTheSame) {
    platform.programFocus.setActive(true);
    start();
    engine().onTick = nullptr;
    engine().onWorkIntervalCompleted = nullptr;
    tickAt("08:20:00");
    tickAt("08:20:20");
    EXPECT_EQ(state(), "working until 08:40:20");
    forget();
}

} // namespace
} // namespace kestrelfen
