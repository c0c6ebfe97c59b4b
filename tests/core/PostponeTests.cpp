#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

class PostponeTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(PostponeTest, TheNewDueDateCountsFromTheGivenDateAndMayComeNearer) {
    start();
    tickAt("08:05:00");
    EXPECT_TRUE(engine().postponeNextBreak(300, now()));
    EXPECT_EQ(happened(), lines({"08:05:00 log postponed 5 min (today: 1)"}));
    EXPECT_EQ(state(), "working until 08:10:00");
    EXPECT_EQ(engine().nextBreakAt(), at("08:10:00"));
    EXPECT_EQ(engine().currentPhaseTotal(), 300.0);
}

TEST_F(PostponeTest, FromTheWarningGoesBackToWork) {
    start();
    tickAt("08:19:55");
    forget();
    EXPECT_TRUE(engine().postponeNextBreak(600, now()));
    EXPECT_EQ(happened(), lines({"08:19:55 log postponed 10 min (today: 1)"}));
    EXPECT_EQ(state(), "working until 08:29:55");
}

TEST_F(PostponeTest, LeavesTheSnoozesOfTheBreakAlone) {
    prefer("snoozesPerBreak", 0);
    start();
    EXPECT_TRUE(engine().postponeNextBreak(60, now()));
    EXPECT_EQ(engine().snoozesOnCurrentBreak(), 0);
    forget();
}

TEST_F(PostponeTest, SpendsTheDaysSnoozes) {
    prefer("snoozesPerDay", 2);
    start();
    EXPECT_TRUE(engine().postponeNextBreak(60, now()));
    EXPECT_TRUE(engine().postponeNextBreak(60, now()));
    EXPECT_EQ(happened(),
              lines({"08:00:00 log postponed 1 min (today: 1)", "08:00:00 log postponed 1 min (today: 2)"}));
    EXPECT_FALSE(engine().canPostpone());
    EXPECT_FALSE(engine().postponeNextBreak(60, now()));
    EXPECT_EQ(platform.preferences.integer("snoozesPerDay.count"), 2);
    EXPECT_EQ(platform.preferences.date("snoozesPerDay.day"), at("00:00:00"));
    EXPECT_EQ(happened(), "");
}

TEST_F(PostponeTest, OfNothingOrLessIsRefusedAndSpendsNothing) {
    start();
    EXPECT_FALSE(engine().postponeNextBreak(0, now()));
    EXPECT_FALSE(engine().postponeNextBreak(-1, now()));
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(platform.preferences.object("snoozesPerDay.count"), nullptr);
    EXPECT_EQ(happened(), "");
}

TEST_F(PostponeTest, IsRefusedOnBreakPausedAndIdle) {
    create();
    EXPECT_FALSE(engine().postponeNextBreak(60, now()));
    start();
    engine().pause(PauseReason::manual);
    EXPECT_FALSE(engine().postponeNextBreak(60, now()));
    engine().resume(now());
    engine().beginBreak(now());
    EXPECT_FALSE(engine().postponeNextBreak(60, now()));
    EXPECT_EQ(platform.preferences.object("snoozesPerDay.count"), nullptr);
    forget();
}

TEST_F(PostponeTest, WarnsOfItsOwnEnd) {
    start();
    engine().postponeNextBreak(60, now());
    forget();
    run(60);
    EXPECT_EQ(happened(), lines({"08:00:50 log pre-break warning (0:10 to break)",
                                 "08:01:00 log break 20 s → ends 08:01"}));
}

} // namespace
} // namespace kestrelfen
