#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

struct Kind {
    SmartPauseKind kind;
    PauseReason reason;
    std::string_view key;
};

constexpr Kind kinds[] = {
    {SmartPauseKind::meetings, PauseReason::meeting, "smartPauseMeetings"},
    {SmartPauseKind::video, PauseReason::videoPlayback, "smartPauseVideo"},
    {SmartPauseKind::screenSharing, PauseReason::screenSharing, "smartPauseScreenSharing"},
    {SmartPauseKind::focusApps, PauseReason::focusApp, "smartPauseFocusApps"}};

class SmartPauseTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
};

TEST_F(SmartPauseTest, EachKindPausesUnderItsReasonWhenItIsEnabled) {
    for (const Kind& row : kinds) {
        prefer(row.key, true);
        create();
        jumpTo("08:00:00");
        start();
        smartPause().found = row.kind;
        run(1);
        EXPECT_EQ(happened(),
                  "08:00:01 log paused (" + std::string(rawValue(row.reason)) + ", 19:59 left)\n");
    }
}

TEST_F(SmartPauseTest, AKindThatIsNotEnabledDoesNotPause) {
    for (const Kind& row : kinds) {
        prefer(row.key, false);
        create();
        jumpTo("08:00:00");
        start();
        smartPause().found = row.kind;
        run(5);
        EXPECT_EQ(happened(), "") << row.key;
    }
}

TEST_F(SmartPauseTest, AKindThatIsNotEnabledLeavesIdlenessTheWordNext) {
    prefer("smartPauseVideo", false);
    start();
    smartPause().found = SmartPauseKind::video;
    platform.inputIdle.setAway();
    run(61);
    EXPECT_EQ(happened(), lines({"08:01:01 log paused (userIdle, 18:59 left)"}));
}

TEST_F(SmartPauseTest, BeatsIdleness) {
    start();
    smartPause().found = SmartPauseKind::video;
    platform.inputIdle.setAge(5000);
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:01 log paused (videoPlayback, 19:59 left)"}));
}

TEST_F(SmartPauseTest, BeatsADueBreak) {
    start();
    smartPause().found = SmartPauseKind::meetings;
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log paused (meeting, 0:00 left)"}));
}

TEST_F(SmartPauseTest, EndsARunningWarningAlsoAtItsDueDate) {
    start();
    tickAt("08:19:50");
    forget();
    smartPause().found = SmartPauseKind::meetings;
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log paused (meeting, 0:00 left)"}));
}

TEST_F(SmartPauseTest, IsSampledOncePerTickOfWorkWarningAndSmartPause) {
    start();
    tickAt("08:00:01");
    tickAt("08:19:50");
    tickAt("08:19:51");
    smartPause().found = SmartPauseKind::screenSharing;
    tickAt("08:19:52");
    tickAt("08:19:53");
    EXPECT_EQ(smartPause().samples, (std::vector<Date>{at("08:00:01"), at("08:19:50"), at("08:19:51"),
                                                       at("08:19:52"), at("08:19:53")}));
    forget();
}

TEST_F(SmartPauseTest, IsNotSampledDuringOtherPauses) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        create();
        start();
        platform.inputIdle.setAge(5000);
        engine().pause(reason);
        smartPause().samples.clear();
        run(3);
        EXPECT_EQ(smartPause().samples.size(), isSmart(reason) ? 3U : 0U) << rawValue(reason);
        forget();
    }
}

TEST_F(SmartPauseTest, EndsWhenItHasSettled) {
    start();
    smartPause().found = SmartPauseKind::meetings;
    run(1);
    forget();
    smartPause().found.reset();
    run(10);
    EXPECT_EQ(happened(), "");
    smartPause().settled = true;
    run(1);
    EXPECT_EQ(happened(), lines({"08:00:12 log resumed work (19:59 to break)",
                                 "08:00:12 record meeting pause from 08:00:01, 11 s, day 2026-03-09"}));
}

TEST_F(SmartPauseTest, TheAnswerOfASampleDuringThePauseIsIgnored) {
    start();
    smartPause().found = SmartPauseKind::meetings;
    run(1);
    forget();
    smartPause().found = SmartPauseKind::video;
    run(1);
    EXPECT_EQ(state(), "paused (meeting)");
    smartPause().settled = true;
    run(1);
    EXPECT_EQ(state(), "working until 08:20:02");
    forget();
}

TEST_F(SmartPauseTest, WithoutAutomaticResumingItStaysSettledOrNot) {
    prefer("resumeAutomatically", false);
    start();
    smartPause().found = SmartPauseKind::meetings;
    run(1);
    forget();
    smartPause().settled = true;
    run(100);
    EXPECT_EQ(happened(), "");
    engine().resume(now());
    EXPECT_EQ(state(), "working until 08:21:40");
    settle();
    forget();
}

TEST_F(SmartPauseTest, SwitchedOffDuringThePauseItStillEndsOnlyWhenSettled) {
    start();
    smartPause().found = SmartPauseKind::meetings;
    run(1);
    forget();
    prefer("smartPauseMeetings", false);
    run(10);
    EXPECT_EQ(happened(), "");
}

TEST_F(SmartPauseTest, InputDoesNotEndIt) {
    start();
    smartPause().found = SmartPauseKind::focusApps;
    prefer("smartPauseFocusApps", true);
    run(1);
    forget();
    platform.inputIdle.setActive();
    run(10);
    EXPECT_EQ(happened(), "");
}

} // namespace
} // namespace kestrelfen
