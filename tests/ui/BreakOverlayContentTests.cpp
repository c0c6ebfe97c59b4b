#include "ContentTest.hpp"
#include "ui/BreakOverlayView/BreakOverlayContent.hpp"

namespace kestrelfen {
namespace {

using Kind = BreakOverlayControl::Kind;
using Texts = std::vector<std::string>;

class BreakOverlayContentTest : public ContentTest {
  protected:
    BreakOverlayContent content() {
        return BreakOverlayContent::of(engine(), platform.preferences, platform.displays.count());
    }

    Texts controls() {
        Texts texts;
        for (const BreakOverlayControl& control : content().controls) {
            texts.push_back(control.text);
        }
        return texts;
    }
};

TEST_F(BreakOverlayContentTest, ShortBreakHasItsTexts) {
    beginBreak();
    const auto shown = content();
    EXPECT_FALSE(shown.isLong);
    EXPECT_EQ(shown.eyebrow, std::nullopt);
    EXPECT_EQ(shown.title, "Look 20 feet away");
    EXPECT_EQ(shown.body, "Blink slowly. Roll your shoulders. Nothing is being counted as screen time.");
    EXPECT_EQ(shown.coverageNote, "covering 1 display · esc does nothing");
    EXPECT_EQ(shown.cadenceDots, std::nullopt);
    EXPECT_EQ(shown.cadenceText, std::nullopt);
    EXPECT_EQ(shown.cadenceSkip, std::nullopt);
}

TEST_F(BreakOverlayContentTest, LongBreakHasItsTexts) {
    beginLongBreak(4);
    const auto shown = content();
    EXPECT_TRUE(shown.isLong);
    EXPECT_EQ(shown.eyebrow, "Long break · every 4th cycle");
    EXPECT_EQ(shown.title, "Stand up and walk");
    EXPECT_EQ(shown.body, "Five minutes. Get water, look out a window, let your eyes refocus.");
    EXPECT_EQ(shown.coverageNote, std::nullopt);
    EXPECT_EQ(shown.cadenceDots, 4);
    EXPECT_EQ(shown.cadenceText, "4 work intervals since the last long break");
}

TEST_F(BreakOverlayContentTest, FixedTextsOfTheLongBreakFollowNoSetting) {
    prefer("longBreakDurationSeconds", 600.0);
    beginLongBreak(3);
    EXPECT_EQ(content().eyebrow, "Long break · every 4th cycle");
    EXPECT_EQ(content().body, "Five minutes. Get water, look out a window, let your eyes refocus.");
    EXPECT_EQ(content().ringLabel, "10:00");
    EXPECT_EQ(content().cadenceDots, 3);
    EXPECT_EQ(content().cadenceText, "3 work intervals since the last long break");
}

TEST_F(BreakOverlayContentTest, RingIsTheShareThatIsLeft) {
    beginBreak();
    EXPECT_DOUBLE_EQ(content().ringRemaining, 1.0);
    EXPECT_EQ(content().ringLabel, "0:20");
    wait(5);
    EXPECT_DOUBLE_EQ(content().ringRemaining, 0.75);
    EXPECT_EQ(content().ringLabel, "0:15");
    wait(14.5);
    EXPECT_DOUBLE_EQ(content().ringRemaining, 0.025);
    EXPECT_EQ(content().ringLabel, "0:01");
}

TEST_F(BreakOverlayContentTest, RingIsEmptyWithoutALength) {
    EXPECT_DOUBLE_EQ(content().ringRemaining, 0.0);
    EXPECT_EQ(content().ringLabel, "0:00");
    prefer("breakDurationSeconds", 0.0);
    beginBreak();
    EXPECT_DOUBLE_EQ(content().ringRemaining, 0.0);
}

TEST_F(BreakOverlayContentTest, SnoozesStandInCaseOrderWithTheirSpokenLabels) {
    beginBreak();
    const auto shown = content().controls;
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[0], (BreakOverlayControl{Kind::snooze, "+1 min", "Snooze 1 minute", SnoozeOption::one}));
    EXPECT_EQ(shown[1],
              (BreakOverlayControl{Kind::snooze, "+3 min", "Snooze 3 minutes", SnoozeOption::three}));
    EXPECT_EQ(shown[2],
              (BreakOverlayControl{Kind::snooze, "+5 min", "Snooze 5 minutes", SnoozeOption::five}));
    EXPECT_EQ(shown[3].kind, Kind::skipWait);
    EXPECT_EQ(shown[3].snooze, std::nullopt);
}

TEST_F(BreakOverlayContentTest, SnoozesGoWithTheQuota) {
    setQuota("snoozesPerDay", 0);
    beginBreak();
    EXPECT_EQ(controls(), (Texts{"Skip in 5"}));
    setQuota("snoozesPerDay", 1);
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min", "Skip in 5"}));
    setQuota("snoozesPerBreak", 0);
    EXPECT_EQ(controls(), (Texts{"Skip in 5"}));
}

TEST_F(BreakOverlayContentTest, EverythingStandsInOrder) {
    beginLongBreak();
    wait(225);
    const auto shown = content().controls;
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min", "End Break", "Skip This Break"}));
    EXPECT_EQ(shown[3].kind, Kind::endBreak);
    EXPECT_EQ(shown[3].spokenLabel, "End Break");
    EXPECT_EQ(shown[4].kind, Kind::skip);
    EXPECT_EQ(shown[4].spokenLabel, "Skip This Break");
}

TEST_F(BreakOverlayContentTest, EndButtonComesNearTheEndIfAllowed) {
    beginLongBreak();
    wait(224);
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min", "Skip This Break"}));
    wait(1);
    EXPECT_EQ(controls()[3], "End Break");
    prefer("allowEndBreakEarly", false);
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min", "Skip This Break"}));
}

TEST_F(BreakOverlayContentTest, SkipWaitCountsDownInWholeSeconds) {
    beginBreak();
    EXPECT_EQ(controls().back(), "Skip in 5");
    wait(0.1);
    EXPECT_EQ(controls().back(), "Skip in 5");
    wait(0.9);
    EXPECT_EQ(controls().back(), "Skip in 4");
    wait(3.5);
    EXPECT_EQ(controls().back(), "Skip in 1");
    wait(0.499999);
    EXPECT_EQ(controls().back(), "Skip in 1");
    wait(0.000001);
    EXPECT_EQ(controls().back(), "Skip This Break");
}

TEST_F(BreakOverlayContentTest, SkipWaitIsNeverNegative) {
    prefer("enforcementLevel", std::string("casual"));
    beginBreak();
    EXPECT_EQ(controls().back(), "Skip This Break");
    engine().pause(PauseReason::manual);
    EXPECT_EQ(content().controls.back().kind, Kind::skipWait);
    EXPECT_EQ(controls().back(), "Skip in 0");
}

TEST_F(BreakOverlayContentTest, HardcoreHasNoSkipInEitherRow) {
    prefer("enforcementLevel", std::string("hardcore"));
    beginLongBreak();
    wait(60);
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min"}));
    EXPECT_EQ(content().cadenceSkip, false);
}

TEST_F(BreakOverlayContentTest, HiddenSkipButtonHidesEverySkip) {
    prefer("showSkipButton", false);
    beginLongBreak();
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min"}));
    wait(60);
    EXPECT_EQ(controls(), (Texts{"+1 min", "+3 min", "+5 min"}));
    EXPECT_EQ(content().cadenceSkip, false);
}

TEST_F(BreakOverlayContentTest, CadenceSkipComesAfterTheDelay) {
    beginLongBreak();
    EXPECT_EQ(content().cadenceSkip, false);
    wait(4);
    EXPECT_EQ(content().cadenceSkip, false);
    wait(1);
    EXPECT_EQ(content().cadenceSkip, true);
}

TEST_F(BreakOverlayContentTest, NoteCountsTheDisplaysOfTheMoment) {
    beginBreak();
    const auto note = [&](std::int64_t count) {
        return BreakOverlayContent::of(engine(), platform.preferences, count).coverageNote;
    };
    EXPECT_EQ(note(0), "covering 0 displays · esc does nothing");
    EXPECT_EQ(note(1), "covering 1 display · esc does nothing");
    EXPECT_EQ(note(2), "covering 2 displays · esc does nothing");
}

TEST_F(BreakOverlayContentTest, NoteTellsWhatEscapeDoes) {
    beginBreak();
    prefer("doubleEscapeAction", std::string("skip"));
    EXPECT_EQ(content().coverageNote, "covering 1 display · esc twice to skip");
    prefer("doubleEscapeAction", std::string("snooze"));
    EXPECT_EQ(content().coverageNote, "covering 1 display · esc twice to snooze");
    prefer("doubleEscapeAction", std::string("sing"));
    EXPECT_EQ(content().coverageNote, "covering 1 display · esc does nothing");
}

} // namespace
} // namespace kestrelfen
