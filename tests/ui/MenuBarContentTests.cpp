#include "ContentTest.hpp"
#include "ui/MenuBarView/MenuBarContent.hpp"

namespace kestrelfen {
namespace {

using Button = MenuBarContent::Button;
using Buttons = std::array<Button, 3>;

class MenuBarContentTest : public ContentTest {
  protected:
    MenuBarContent content() { return MenuBarContent::of(engine()); }
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

} // namespace
} // namespace kestrelfen
