#include "ContentTest.hpp"
#include "ui/MenuBarView/MenuBarContent.hpp"

namespace kestrelfen {
namespace {

using Button = MenuBarContent::Button;
using Buttons = std::array<Button, 3>;

class MenuBarContentTest : public ContentTest {
  protected:
    MenuBarContent content() { return MenuBarContent::of(engine(), activeSeconds_, activeTask_); }

    double activeSeconds_ = 0;
    std::optional<TaskSummary> activeTask_;
};

TEST_F(MenuBarContentTest, Idle) {
    const auto shown = content();
    EXPECT_EQ(shown.eyebrow, "Not running");
    EXPECT_EQ(shown.value, "Not counting");
    EXPECT_EQ(shown.caption, "The timer is stopped.");
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 0.0);
    EXPECT_EQ(shown.ringLabel, "0:00");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Pause", true}, {"Skip", false}, {"Break Now", true}}}));
}

TEST_F(MenuBarContentTest, Working) {
    start();
    wait(30.5);
    const auto shown = content();
    EXPECT_EQ(shown.eyebrow, "Next break in");
    EXPECT_EQ(shown.value, "19 min 30 sec");
    EXPECT_EQ(shown.caption, "Then 20 s away from the screen.");
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 1169.5 / 1200);
    EXPECT_EQ(shown.ringLabel, "19:30");
    EXPECT_EQ(shown.cycleText, "Cycle 1 of 4");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Pause", true}, {"Skip", true}, {"Break Now", true}}}));
}

TEST_F(MenuBarContentTest, Warning) {
    prefer("breakDurationSeconds", 90.0);
    enterWarning(9.5);
    const auto shown = content();
    EXPECT_EQ(shown.eyebrow, "Next break in");
    EXPECT_EQ(shown.value, "10 sec");
    EXPECT_EQ(shown.caption, "Then 1 min 30 s away from the screen.");
    EXPECT_EQ(shown.ringLabel, "0:10");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Pause", true}, {"Snooze", true}, {"Break Now", true}}}));
}

TEST_F(MenuBarContentTest, ShortBreak) {
    beginBreak();
    wait(4);
    const auto shown = content();
    EXPECT_EQ(shown.eyebrow, "Break ends in");
    EXPECT_EQ(shown.value, "16 sec");
    EXPECT_EQ(shown.caption, "Look 20 feet away.");
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 0.8);
    EXPECT_EQ(shown.ringLabel, "0:16");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Pause", true}, {"Snooze", true}, {"End Break", true}}}));
}

TEST_F(MenuBarContentTest, LongBreak) {
    beginLongBreak();
    EXPECT_EQ(content().value, "5 min");
    EXPECT_EQ(content().caption, "Stand up and walk it off.");
}

TEST_F(MenuBarContentTest, PausedWork) {
    start();
    wait(300);
    engine().pause(PauseReason::manual);
    wait(60);
    const auto shown = content();
    EXPECT_EQ(shown.eyebrow, "Paused");
    EXPECT_EQ(shown.value, "15 min");
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 0.75);
    EXPECT_EQ(shown.ringLabel, "15:00");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Resume", true}, {"Skip", false}, {"Break Now", true}}}));
}

TEST_F(MenuBarContentTest, PausedBreakHasNoTimeToTheNextBreak) {
    beginBreak();
    engine().pause(PauseReason::manual);
    EXPECT_EQ(content().value, "0 sec");
    EXPECT_EQ(content().ringLabel, "0:00");
    EXPECT_DOUBLE_EQ(content().ringRemaining, 0.0);
    EXPECT_EQ(content().buttons[2].label, "Break Now");
}

TEST_F(MenuBarContentTest, EveryReasonOfAPauseHasItsCaption) {
    const std::array captions{
        "Paused by you. Resume when ready.",
        "The Mac slept. Resumes on wake.",
        "Screen locked. Resumes on unlock.",
        "Display asleep. Resumes on wake.",
        "You stepped away. Resumes on input.",
        "You're on a call. Resumes when it ends.",
        "Something is playing. Resumes when it stops.",
        "Capturing the screen. Resumes when you stop.",
        "Deep focus app in front. Resumes when you leave.",
    };
    start();
    const auto reasons = allCases<PauseReason>();
    ASSERT_EQ(reasons.size(), captions.size());
    for (std::size_t index = 0; index < reasons.size(); ++index) {
        engine().pause(reasons[index]);
        EXPECT_EQ(content().caption, captions[index]);
        engine().resume(now());
    }
}

TEST_F(MenuBarContentTest, CaptionTellsTheLengthOfTheComingBreak) {
    prefer("longBreakEvery", 2);
    start();
    EXPECT_EQ(content().caption, "Then 20 s away from the screen.");
    EXPECT_EQ(content().cycleText, "Cycle 1 of 2");
    engine().beginBreak(now());
    engine().completeBreak(now());
    EXPECT_EQ(content().caption, "Then 5 min away from the screen.");
    EXPECT_EQ(content().cycleText, "Cycle 2 of 2 · long break next");
}

TEST_F(MenuBarContentTest, SecondButtonIsASkipOnceTheSnoozesAreSpent) {
    setQuota("snoozesPerDay", 1);
    setQuota("advanceSkipsPerDay", 1);
    enterWarning(10);
    EXPECT_EQ(content().buttons[1], (Button{"Snooze", true}));
    engine().postponeNextBreak(60, now());
    wait(55);
    EXPECT_EQ(content().buttons[1], (Button{"Skip", true}));
    engine().skipNextBreak();
    EXPECT_EQ(content().buttons[1], (Button{"Skip", false}));
}

TEST_F(MenuBarContentTest, SecondButtonInABreakWithoutSnoozesIsDisabled) {
    setQuota("snoozesPerDay", 0);
    beginBreak();
    EXPECT_EQ(content().buttons[1], (Button{"Skip", false}));
}

TEST_F(MenuBarContentTest, ThirdButtonIsNeverDisabled) {
    prefer("enforcementLevel", std::string("hardcore"));
    beginBreak();
    EXPECT_EQ(content().buttons[2], (Button{"End Break", true}));
}

TEST_F(MenuBarContentTest, DayWithoutABreakHasAnEmptyBar) {
    const auto shown = content();
    EXPECT_EQ(shown.breaks, "0 / 0");
    EXPECT_EQ(shown.completionRate, 0.0);
    EXPECT_EQ(shown.screenTime, "0 s");
    EXPECT_EQ(shown.skipped, 0);
}

TEST_F(MenuBarContentTest, DayCountsWhatWasKeptAndWhatWasDue) {
    start();
    for (int kept = 0; kept < 6; ++kept) {
        engine().beginBreak(now());
        engine().completeBreak(now());
    }
    engine().beginBreak(now());
    wait(5);
    engine().skipCurrentBreak();
    activeSeconds_ = 2 * 3600 + 34 * 60 + 59;
    const auto shown = content();
    EXPECT_EQ(shown.breaks, "6 / 7");
    EXPECT_DOUBLE_EQ(shown.completionRate, 6.0 / 7.0);
    EXPECT_EQ(shown.screenTime, "2 h 34 m");
    EXPECT_EQ(shown.skipped, 1);
}

TEST_F(MenuBarContentTest, DayOfSkippedBreaksAlone) {
    beginBreak();
    wait(5);
    engine().skipCurrentBreak();
    EXPECT_EQ(content().breaks, "0 / 1");
    EXPECT_EQ(content().completionRate, 0.0);
    EXPECT_EQ(content().skipped, 1);
}

TEST_F(MenuBarContentTest, DayOfKeptBreaksAloneFillsTheBar) {
    beginBreak();
    wait(20);
    EXPECT_EQ(content().breaks, "1 / 1");
    EXPECT_EQ(content().completionRate, 1.0);
}

TEST_F(MenuBarContentTest, WithoutAnActiveTaskThereIsNoRow) {
    EXPECT_EQ(content().activeTask, std::nullopt);
}

TEST_F(MenuBarContentTest, ActiveTaskTellsItsTitleAndItsCredits) {
    activeTask_ = TaskSummary{.title = "Draft the notes",
                              .notes = {},
                              .createdAt = now(),
                              .completedAt = {},
                              .dueOn = {},
                              .estimatedBreaks = 9,
                              .completedBreaks = 3};
    const auto row = content().activeTask.value();
    EXPECT_EQ(row.title, "Draft the notes");
    EXPECT_EQ(row.credits, 3);
    EXPECT_EQ(row.creditsText, "×3");
    activeTask_->completedBreaks = 0;
    EXPECT_EQ(content().activeTask.value().creditsText, "×0");
}

TEST_F(MenuBarContentTest, FixedTexts) {
    EXPECT_EQ(MenuBarContent::todayEyebrow, "Today");
    EXPECT_EQ(MenuBarContent::breaksTitle, "Breaks completed");
    EXPECT_EQ(MenuBarContent::screenTimeTitle, "Screen time");
    EXPECT_EQ(MenuBarContent::skippedTitle, "Skipped");
    EXPECT_EQ(MenuBarContent::activeTaskCaption, "Active task · credited each interval");
}

} // namespace
} // namespace kestrelfen
