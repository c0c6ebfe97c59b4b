#include "ui/ScreenTimeView/ScoreContent.hpp"
#include "ui/ScreenTimeView/UsageCardContent.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(UsageCard, OfNoApps) {
    const auto card = UsageCardContent::ofApps({});
    EXPECT_EQ(card.title, "By App");
    EXPECT_TRUE(card.rows.empty());
    EXPECT_EQ(card.emptyNote, "Nothing attributed yet.");
    EXPECT_EQ(card.footnote, "Resolved from window bounds. No Screen Recording or Accessibility permission.");
}

TEST(UsageCard, OfNoWebsites) {
    const auto card = UsageCardContent::ofWebsites({});
    EXPECT_EQ(card.source, UsageSource::websites);
    EXPECT_EQ(card.title, "By Website");
    EXPECT_EQ(card.emptyNote, "No website time yet. Turn a browser on in Settings › Website Stats.");
    EXPECT_EQ(card.footnote, "Domains only, from the browsers you enabled.");
}

TEST(UsageCard, OfApps) {
    const auto card = UsageCardContent::ofApps({{"a", "Alpha", 1, 4'080}, {"a", "Alpha", 2, 1'020}});
    using Row = UsageCardContent::Row;
    EXPECT_EQ(card.rows, (std::vector<Row>{{"a#1", "Alpha", 4'080, "1 h 08 m", 1},
                                           {"a#2", "Alpha", 1'020, "17 m", 0.25}}));
    EXPECT_EQ(card.emptyNote, std::nullopt);
}

TEST(UsageCard, OfWebsites) {
    const auto card = UsageCardContent::ofWebsites({{"example.org", 60}});
    EXPECT_EQ(card.rows[0], (UsageCardContent::Row{"example.org", "example.org", 60, "1 m", 1}));
}

TEST(UsageCard, ShowsFourRows) {
    const AppUsageSummary app{"a", "Alpha", 1, 60};
    EXPECT_EQ(UsageCardContent::ofApps(std::vector(20, app)).rows.size(), 4U);
}

TEST(UsageCard, ScaleIsASecondAtLeast) {
    EXPECT_EQ(UsageCardContent::ofApps({{"a", "Alpha", 1, 0.5}}).rows[0].fraction, 0.5);
    EXPECT_EQ(UsageCardContent::ofApps({{"a", "Alpha", 1, 0}}).rows[0].fraction, 0);
}

TEST(ScoreContent, WithoutData) {
    const auto card = ScoreContent::of({}, {}, 1'200);
    EXPECT_EQ(card.value, "—");
    EXPECT_EQ(card.valueTint, "faint");
    EXPECT_EQ(card.label, "No data yet");
    EXPECT_EQ(card.labelTint, "faint");
    EXPECT_EQ(card.suggestion, "Nothing recorded yet. The score fills in as the week goes on.");
}

TEST(ScoreContent, WithData) {
    const auto card = ScoreContent::of({.score = 79,
                                        .keptRatio = 0.78,
                                        .daysWithinTarget = 5,
                                        .daysCounted = 7,
                                        .longestStretch = 3'840,
                                        .stretchTarget = 3'600},
                                       {}, 1'200);
    EXPECT_EQ(card.value, "79");
    EXPECT_EQ(card.valueTint, "ink");
    EXPECT_EQ(card.label, "Good");
    EXPECT_EQ(card.labelTint, "accent");
    EXPECT_EQ(card.meters[2].value, "5 of 7");
    EXPECT_EQ(card.suggestion,
              "Your longest stretch today ran 1 h 04 m. A break every 20 m keeps it under 1h.");
}

} // namespace
} // namespace kestrelfen
