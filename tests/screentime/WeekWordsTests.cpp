#include "base/Translated.hpp"
#include "screentime/WeekWords.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(WeekWords, KeptPercent) {
    EXPECT_EQ(keptPercentLabel({}), "—");
    EXPECT_EQ(keptPercentLabel(0), "0%");
    EXPECT_EQ(keptPercentLabel(0.125), "13%");
    EXPECT_EQ(keptPercentLabel(2.0 / 3), "67%");
    EXPECT_EQ(keptPercentLabel(1), "100%");
}

TEST(WeekWords, KeptTint) {
    EXPECT_EQ(keptTint({}, false), "faint");
    EXPECT_EQ(keptTint({}, true), "faint");
    EXPECT_EQ(keptTint(0.1, true), "accent");
    EXPECT_EQ(keptTint(0.65, true), "accent");
    EXPECT_EQ(keptTint(0.8, true), "accent");
    EXPECT_EQ(keptTint(1, false), "slate");
    EXPECT_EQ(keptTint(0.8, false), "slate");
    EXPECT_EQ(keptTint(0.799, false), "amber");
    EXPECT_EQ(keptTint(0.65, false), "amber");
    EXPECT_EQ(keptTint(0.649, false), "danger");
    EXPECT_EQ(keptTint(0, false), "danger");
}

TEST(WeekWords, TargetLabel) {
    EXPECT_EQ(targetLabel(18'000), "5h");
    EXPECT_EQ(targetLabel(5'400), "1.5h");
    EXPECT_EQ(targetLabel(3'600), "1h");
    EXPECT_EQ(targetLabel(3'601), "1.0h");
    EXPECT_EQ(targetLabel(2'700), "45m");
    EXPECT_EQ(targetLabel(3'599), "60m");
    EXPECT_EQ(targetLabel(90), "2m");
    EXPECT_EQ(targetLabel(0), "0m");
    EXPECT_EQ(targetLabel(-10), "0m");
    EXPECT_EQ(targetLabel(-60), "-1m");
    EXPECT_EQ(targetLabel(3.6e23), "100000000000000000000h");
}

/// A language that sets tenths off by a comma.
class CommaCatalogue : public Catalogue {
  public:
    std::string text(std::string_view original) const override {
        return original == "%1.%2h" ? "%1,%2 h" : std::string(original);
    }
    std::string counted(std::int64_t, std::string_view, std::string_view many) const override {
        return std::string(many);
    }
};

TEST(WeekWords, TenthsOfAnHourHaveTheSignOfTheLanguage) {
    const CommaCatalogue catalogue;
    useCatalogue(&catalogue);
    EXPECT_EQ(targetLabel(5'400), "1,5 h");
    EXPECT_EQ(targetLabel(3'601), "1,0 h");
    EXPECT_EQ(targetLabel(3'600), "1h");
    useCatalogue(nullptr);
}

TEST(WeekWords, AxisLabel) {
    EXPECT_EQ(axisLabel(0), "0");
    EXPECT_EQ(axisLabel(-1), "0");
    EXPECT_EQ(axisLabel(1), "0m");
    EXPECT_EQ(axisLabel(9'000), "2.5h");
}

std::string sentence(const EyeScore& score, const ScreenTimeTargets& targets = {}) {
    return suggestion(score, targets, 1'200);
}

/// Everything in order.
constexpr EyeScore steady{.score = 100,
                          .keptRatio = 1,
                          .daysWithinTarget = 7,
                          .daysCounted = 7,
                          .longestStretch = 3'600,
                          .stretchTarget = 3'600};

TEST(Suggestion, NothingRecordedComesFirst) {
    EXPECT_EQ(sentence({.longestStretch = 9'000}),
              "Nothing recorded yet. The score fills in as the week goes on.");
}

TEST(Suggestion, LongStretchComesBeforeEverythingElse) {
    EyeScore score = steady;
    score.keptRatio = 0.1;
    score.daysWithinTarget = 0;
    score.longestStretch = 7'200;
    EXPECT_EQ(sentence(score),
              "Your longest stretch today ran 2 h 00 m. A break every 20 m keeps it under 1h.");
    EXPECT_EQ(sentence(score, {.stretch = 5'400}),
              "Your longest stretch today ran 2 h 00 m. A break every 20 m keeps it under 1.5h.");
}

TEST(Suggestion, StretchAtItsTargetIsNotLong) {
    EXPECT_EQ(sentence(steady), "Steady week: breaks kept, stretches short, every day inside target.");
}

TEST(Suggestion, SkippedBreaksComeBeforeLongDays) {
    EyeScore score = steady;
    score.keptRatio = 0.795;
    score.daysWithinTarget = 0;
    EXPECT_EQ(sentence(score), "You kept 80% of your breaks this week. Postponing beats skipping — the break "
                               "still happens.");
}

TEST(Suggestion, LongDays) {
    EyeScore score = steady;
    score.keptRatio = 0.8;
    score.daysWithinTarget = 5;
    EXPECT_EQ(sentence(score), "2 of 7 days ran past your 5h target.");
    EXPECT_EQ(sentence(score, {.day = 2'700}), "2 of 7 days ran past your 45m target.");
}

TEST(ScoreMeters, OfNoDays) {
    const auto meters = scoreMeters({.stretchTarget = 3'600});
    EXPECT_EQ(meters[0], (ScoreMeter{"Breaks kept", "—", 0, "accent"}));
    EXPECT_EQ(meters[1], (ScoreMeter{"Longest stretch, 1h target", "—", 0, "accent"}));
    EXPECT_EQ(meters[2], (ScoreMeter{"Days within target", "—", 0, "accent"}));
}

TEST(ScoreMeters, OfAWeek) {
    const auto meters = scoreMeters({.keptRatio = 0.776,
                                     .daysWithinTarget = 5,
                                     .daysCounted = 8,
                                     .longestStretch = 1'800,
                                     .stretchTarget = 2'700});
    EXPECT_EQ(meters[0], (ScoreMeter{"Breaks kept", "78%", 0.776, "accent"}));
    EXPECT_EQ(meters[1], (ScoreMeter{"Longest stretch, 45m target", "30 m", 1, "accent"}));
    EXPECT_EQ(meters[2], (ScoreMeter{"Days within target", "5 of 8", 0.625, "accent"}));
}

TEST(ScoreMeters, StretchBeyondItsTarget) {
    const auto stretch = [](double seconds, double target) {
        return scoreMeters({.daysCounted = 1, .longestStretch = seconds, .stretchTarget = target})[1];
    };
    EXPECT_EQ(stretch(3'600, 3'600).tint, "accent");
    EXPECT_EQ(stretch(3'600, 3'600).fraction, 1);
    EXPECT_EQ(stretch(4'500, 3'600), (ScoreMeter{"Longest stretch, 1h target", "1 h 15 m", 0.75, "amber"}));
    EXPECT_EQ(stretch(7'200, 3'600).fraction, 0);
    EXPECT_EQ(stretch(9'000, 3'600).fraction, 0);
    EXPECT_EQ(stretch(60, 0), (ScoreMeter{"Longest stretch, 0m target", "1 m", 1, "amber"}));
    EXPECT_EQ(stretch(0, 0).fraction, 0);
}

} // namespace
} // namespace kestrelfen
