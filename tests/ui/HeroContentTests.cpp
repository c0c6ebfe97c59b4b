#include "ContentTest.hpp"
#include "core/PauseReason.hpp"
#include "ui/ScreenTimeView/HeroContent.hpp"

namespace kestrelfen {
namespace {

using Buttons = std::array<HeroContent::Button, 3>;

class HeroContentTest : public ContentTest {
  protected:
    HeroContent content() { return HeroContent::of(engine(), platform.timeFormat, facts_); }

    HeroContent::Facts facts_;
};

TEST_F(HeroContentTest, Working) {
    start();
    wait(300);
    const auto shown = content();
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 0.75);
    EXPECT_EQ(shown.ringLabel, "15:00");
    EXPECT_EQ(shown.ringCaption, "to next break");
    EXPECT_EQ(shown.headline, "Short break at 08:20");
    EXPECT_EQ(shown.subhead, "20 seconds, look 20 feet away. Held back during calls, video and idle time.");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Break Now", true}, {"Postpone 5m", true}, {"Pause 1h", true}}}));
    EXPECT_EQ(shown.stats[0], (HeroContent::Stat{"5 m", "current stretch"}));
}

TEST_F(HeroContentTest, BeforeALongBreakTheSubheadStillTellsTheShortOnes) {
    prefer("longBreakEvery", std::int64_t{2});
    prefer("breakDurationSeconds", 20.2);
    start();
    engine().beginBreak(now());
    engine().completeBreak(now());
    EXPECT_EQ(content().headline, "Long break at 08:20");
    EXPECT_EQ(content().subhead,
              "21 seconds, look 20 feet away. Held back during calls, video and idle time.");
}

TEST_F(HeroContentTest, BreakWhoseLengthCannotBeWrittenIsAFault) {
    prefer("breakDurationSeconds", 1e300);
    start();
    EXPECT_DEATH(content(), "a number of seconds that cannot be written");
}

TEST_F(HeroContentTest, Warning) {
    enterWarning(9.5);
    const auto shown = content();
    EXPECT_EQ(shown.ringLabel, "0:10");
    EXPECT_EQ(shown.ringCaption, "to next break");
    EXPECT_EQ(shown.headline, "Short break at 08:20");
    EXPECT_EQ(shown.stats[0].value, "19 m");
}

TEST_F(HeroContentTest, ShortBreak) {
    beginBreak();
    wait(5);
    const auto shown = content();
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 0.75);
    EXPECT_EQ(shown.ringLabel, "0:15");
    EXPECT_EQ(shown.ringCaption, "of this break");
    EXPECT_EQ(shown.headline, "Break in progress");
    EXPECT_EQ(shown.subhead, "Look about twenty feet away until the ring runs out.");
    EXPECT_EQ(shown.buttons, (Buttons{{{"End Break", true}, {"Postpone 5m", false}, {"Pause 1h", true}}}));
    EXPECT_EQ(shown.stats[0].value, "0 s");
}

TEST_F(HeroContentTest, LongBreak) {
    beginLongBreak();
    EXPECT_EQ(content().headline, "Long break in progress");
    EXPECT_EQ(content().ringLabel, "5:00");
}

TEST_F(HeroContentTest, PausedByHand) {
    start();
    wait(300);
    engine().pause(PauseReason::manual);
    const auto shown = content();
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 1.0);
    EXPECT_EQ(shown.ringLabel, "15:00");
    EXPECT_EQ(shown.ringCaption, "paused");
    EXPECT_EQ(shown.headline, "Paused by you. Resume when ready.");
    EXPECT_EQ(shown.subhead, "Resumes on its own.");
    EXPECT_EQ(shown.buttons[2], (HeroContent::Button{"Resume", true}));
    EXPECT_EQ(shown.stats[0].value, "0 s");
}

TEST_F(HeroContentTest, PausedUntilATime) {
    start();
    engine().pauseFor(3'600, now());
    EXPECT_EQ(content().headline, "Paused by you. Resume when ready.");
    EXPECT_EQ(content().subhead, "Resumes at 09:00");
}

TEST_F(HeroContentTest, EveryOtherPauseResumesOnItsOwn) {
    const std::array<std::string, 9> captions{"Paused by you. Resume when ready.",
                                              "The Mac slept. Resumes on wake.",
                                              "Screen locked. Resumes on unlock.",
                                              "Display asleep. Resumes on wake.",
                                              "You stepped away. Resumes on input.",
                                              "You're on a call. Resumes when it ends.",
                                              "Something is playing. Resumes when it stops.",
                                              "Capturing the screen. Resumes when you stop.",
                                              "Deep focus app in front. Resumes when you leave."};
    for (const PauseReason reason : allCases<PauseReason>()) {
        create().start();
        engine().pause(reason);
        EXPECT_EQ(content().headline, captions.at(static_cast<std::size_t>(reason)));
        EXPECT_EQ(content().subhead, "Resumes on its own.");
    }
}

TEST_F(HeroContentTest, Idle) {
    const auto shown = content();
    EXPECT_DOUBLE_EQ(shown.ringRemaining, 1.0);
    EXPECT_EQ(shown.ringLabel, "0:00");
    EXPECT_EQ(shown.ringCaption, "not running");
    EXPECT_EQ(shown.headline, "Timer is not running");
    EXPECT_EQ(shown.subhead, "Start the timer from the menu bar.");
    EXPECT_EQ(shown.buttons, (Buttons{{{"Break Now", true}, {"Postpone 5m", false}, {"Pause 1h", true}}}));
    EXPECT_EQ(shown.stats[0].value, "0 s");
}

TEST_F(HeroContentTest, PostponeGoesWithItsQuota) {
    prefer("snoozesPerDay", std::int64_t{0});
    start();
    EXPECT_FALSE(content().buttons[1].enabled);
}

TEST_F(HeroContentTest, PostponementLongerThanTheWorkLeavesNoNegativeStretch) {
    prefer("workIntervalSeconds", 60.0);
    start();
    engine().postponeNextBreak(300, now());
    EXPECT_EQ(content().stats[0].value, "0 s");
}

TEST_F(HeroContentTest, StatsAreOfTheDay) {
    facts_ = {.longestStretch = 3'840, .activeSeconds = 9'240, .pausedSeconds = 59.6, .streak = 3};
    const auto stats = content().stats;
    EXPECT_EQ(stats[1], (HeroContent::Stat{"1 h 04 m", "longest today"}));
    EXPECT_EQ(stats[2], (HeroContent::Stat{"2 h 34 m", "screen time"}));
    EXPECT_EQ(stats[3], (HeroContent::Stat{"1 m", "paused away"}));
    EXPECT_EQ(stats[4], (HeroContent::Stat{"3 days", "streak", "accent"}));
}

TEST_F(HeroContentTest, StreakCountsInDays) {
    EXPECT_EQ(content().stats[4], (HeroContent::Stat{"0 days", "streak", "ink"}));
    facts_.streak = 1;
    EXPECT_EQ(content().stats[4], (HeroContent::Stat{"1 day", "streak", "accent"}));
}

} // namespace
} // namespace kestrelfen
