#include "platform/fake/FakeCalendar.hpp"
#include "platform/fake/FakeTimeFormat.hpp"
#include "support/Moments.hpp"
#include "ui/ScreenTimeView/WeekContent.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class WeekContentTest : public testing::Test {
  protected:
    WeekContent content() {
        return WeekContent::of(Week::of(days_, today_, calendar_), targets_, hovered_, timeFormat_);
    }

    FakeCalendar calendar_;
    FakeTimeFormat timeFormat_{calendar_};
    std::vector<DaySummary> days_;
    Week::Today today_{at("00:00:00")};
    ScreenTimeTargets targets_;
    std::optional<Date> hovered_;
};

TEST_F(WeekContentTest, WordsAndRoomsThatNeverChange) {
    EXPECT_EQ(WeekContent::title, "Screen Time and Breaks Kept");
    EXPECT_EQ(WeekContent::screenTimeLegend, "Screen time");
    EXPECT_EQ(WeekContent::keptLegend, "% = breaks kept that day");
    EXPECT_EQ(WeekContent::targetMark, "target");
    EXPECT_EQ(WeekContent::labelsHeight, 34);
    EXPECT_EQ(WeekContent::headroom, 18);
}

TEST_F(WeekContentTest, SubtitleOfAnEmptyWeek) {
    EXPECT_EQ(content().subtitle, "Nothing recorded this week yet");
    EXPECT_FALSE(content().isHovering);
}

TEST_F(WeekContentTest, SubtitleOfTheWeek) {
    days_ = {{.startOfDay = at("2026-03-08 00:00:00"), .breaksCompleted = 2, .breaksSkipped = 1}};
    EXPECT_EQ(content().subtitle, "Daily average 0 s · 67% kept");
    today_ = {at("00:00:00"), 1, 0, 7'000};
    EXPECT_EQ(content().subtitle, "Daily average 16 m · 75% kept");
    days_.clear();
    today_ = {at("00:00:00"), 0, 0, 7'000};
    EXPECT_EQ(content().subtitle, "Daily average 16 m · — kept");
}

TEST_F(WeekContentTest, SubtitleOfAHoveredDay) {
    days_ = {{.startOfDay = at("2026-03-08 00:00:00"), .breaksCompleted = 9, .activeSeconds = 12'000}};
    hovered_ = at("2026-03-08 00:00:00");
    EXPECT_EQ(content().subtitle, "Sun 8 Mar · 3 h 20 m · 9 breaks");
    EXPECT_TRUE(content().isHovering);
    EXPECT_TRUE(content().bars[5].isHovered);
    EXPECT_FALSE(content().bars[6].isHovered);
    days_.front().breaksCompleted = 1;
    EXPECT_EQ(content().subtitle, "Sun 8 Mar · 3 h 20 m · 1 break");
    hovered_ = at("2026-03-03 00:00:00");
    EXPECT_EQ(content().subtitle, "Tue 3 Mar · 0 s · 0 breaks");
}

TEST_F(WeekContentTest, HoveredDayWithoutABarCountsAsNone) {
    hovered_ = at("2026-03-02 00:00:00");
    EXPECT_EQ(content().subtitle, "Nothing recorded this week yet");
    EXPECT_FALSE(content().isHovering);
}

TEST_F(WeekContentTest, Bars) {
    days_ = {{.startOfDay = at("2026-03-08 00:00:00"),
              .breaksCompleted = 7,
              .breaksSkipped = 3,
              .activeSeconds = 4'500}};
    today_ = {at("00:00:00"), 1, 1, 9'000};
    const auto bars = content().bars;
    ASSERT_EQ(bars.size(), 7U);
    EXPECT_EQ(bars[0].weekday, "Tue");
    EXPECT_EQ(bars[0].keptLabel, "—");
    EXPECT_EQ(bars[0].tint, "faint");
    EXPECT_EQ(bars[0].height, 0);
    EXPECT_EQ(bars[0].sentence, "Tue 3 Mar · 0 s · 0 breaks");
    EXPECT_EQ(bars[5].keptLabel, "70%");
    EXPECT_EQ(bars[5].tint, "amber");
    EXPECT_EQ(bars[5].height, 0.25);
    EXPECT_EQ(bars[5].sentence, "Sun 8 Mar · 1 h 15 m · 7 breaks · 70% kept");
    EXPECT_FALSE(bars[5].isToday);
    EXPECT_EQ(bars[6].weekday, "Mon");
    EXPECT_EQ(bars[6].tint, "accent");
    EXPECT_TRUE(bars[6].isToday);
}

TEST_F(WeekContentTest, BarTakesThreePointsAtLeastForAnySeconds) {
    WeekContent::Bar bar;
    EXPECT_EQ(bar.points(138), 0);
    bar.height = 0.5;
    EXPECT_EQ(bar.points(138), 69);
    bar.height = 0.001;
    EXPECT_EQ(bar.points(138), 3);
}

TEST_F(WeekContentTest, GridlinesHalveTheScale) {
    using Gridline = WeekContent::Gridline;
    EXPECT_EQ(content().gridlines, (std::vector<Gridline>{{1, "5h"}, {0.5, "2.5h"}, {0, "0"}}));
    targets_.day = 0;
    EXPECT_EQ(content().gridlines, (std::vector<Gridline>{{1, "1h"}, {0.5, "30m"}, {0, "0"}}));
}

TEST_F(WeekContentTest, TargetIsDrawnBelowTheTopAlone) {
    EXPECT_EQ(content().targetLine, std::nullopt) << "five hours are the top itself";
    EXPECT_EQ(content().targetLegend, "Your 5h target");
    today_.activeSeconds = 20'000;
    EXPECT_EQ(content().targetLine, 18'000.0 / 21'600);
    targets_.day = 0.92 * 21'600;
    EXPECT_EQ(content().targetLine, std::nullopt);
    EXPECT_EQ(content().targetLegend, "Your 5.5h target");
    targets_.day = 0.91 * 21'600;
    EXPECT_TRUE(content().targetLine.has_value());
    targets_.day = 0;
    EXPECT_EQ(content().targetLine, std::nullopt);
}

} // namespace
} // namespace kestrelfen
