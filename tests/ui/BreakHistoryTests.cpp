#include "StoreViewTest.hpp"
#include "ui/BreakHistoryView/BreakHistoryContent.hpp"
#include "ui/BreakHistoryView/HistoryList.hpp"

namespace kestrelfen {
namespace {

using Columns = std::array<std::string, 5>;

class BreakHistoryTest : public StoreViewTest {
  protected:
    HistoryList& list() {
        if (!list_) {
            list_ = std::make_unique<HistoryList>(platform.ports(), engine(), store.get());
        }
        return *list_;
    }

    HistoryList& loaded() {
        list().load();
        settleAll();
        return list();
    }

    void recordPause(std::string_view start, std::string_view day) {
        store->recordPause({.startedAt = at(start), .seconds = 300, .dayStart = at(day)}, {});
        settleAll();
    }

    BreakHistoryRow row(const HistoryEntry& entry) { return BreakHistoryRow::of(entry, platform.timeFormat); }

    BreakHistoryContent content(std::size_t rows, bool hasLoaded = true) {
        return BreakHistoryContent::of(rows, hasLoaded, platform.preferences);
    }

    std::unique_ptr<HistoryList> list_;
};

HistoryEntry entry(const HistoryEntry::Kind& kind) {
    return {.id = "b-1", .startedAt = at("09:05:59"), .kind = kind, .seconds = {}, .taskTitle = {}};
}

TEST_F(BreakHistoryTest, CompletedBreak) {
    HistoryEntry each = entry(HistoryEntry::Kind::completed(false));
    each.seconds = 19.5;
    each.taskTitle = "Write";
    each.displayCount = 2;
    EXPECT_EQ(row(each).columns(), (Columns{"09:05", "Completed", "0:20", "Write", "2 screens"}));
    EXPECT_EQ(row(each).typeTint, "accent");
    EXPECT_FALSE(row(each).isWithoutTask);
    EXPECT_EQ(row(each).sentence(), "09:05, Completed, 0:20, Write, 2 screens");
}

TEST_F(BreakHistoryTest, LongBreakWithoutATask) {
    HistoryEntry each = entry(HistoryEntry::Kind::completed(true));
    each.seconds = 300;
    each.displayCount = 1;
    EXPECT_EQ(row(each).columns(), (Columns{"09:05", "Long break", "5:00", "—", "1 screen"}));
    EXPECT_EQ(row(each).typeTint, "accent");
    EXPECT_TRUE(row(each).isWithoutTask);
    EXPECT_EQ(row(each).sentence(), "09:05, Long break, 5:00, 1 screen");
}

TEST_F(BreakHistoryTest, SkippedBreak) {
    HistoryEntry each = entry(HistoryEntry::Kind::skipped());
    each.taskTitle = "Write";
    EXPECT_EQ(row(each).columns(), (Columns{"09:05", "Skipped", "—", "Write", "—"}));
    EXPECT_EQ(row(each).typeTint, "amber");
}

TEST_F(BreakHistoryTest, PauseOfEveryKind) {
    const std::array<std::string, 9> words{"manual", "sleep", "lock",    "display", "idle",
                                           "call",   "video", "sharing", "focus"};
    for (const PauseKind kind : allCases<PauseKind>()) {
        HistoryEntry each = entry(HistoryEntry::Kind::paused(kind));
        each.seconds = 3'725;
        EXPECT_EQ(row(each).columns(),
                  (Columns{"09:05", "Paused · " + words.at(static_cast<std::size_t>(kind)), "62:05",
                           "not counted as screen time", "—"}));
        EXPECT_EQ(row(each).typeTint, "slate");
        EXPECT_TRUE(row(each).isWithoutTask);
    }
}

TEST_F(BreakHistoryTest, SummaryCountsTheRowsAndNamesTheRetention) {
    EXPECT_EQ(content(0).summary, "0 rows · retention 1 year");
    EXPECT_EQ(content(1).summary, "1 row · retention 1 year");
    prefer("historyRetentionDays", std::int64_t{30});
    EXPECT_EQ(content(500).summary, "500 rows · retention 30 days");
    prefer("historyRetentionDays", std::int64_t{90});
    EXPECT_EQ(content(2).summary, "2 rows · retention 90 days");
    prefer("historyRetentionDays", std::int64_t{0});
    EXPECT_EQ(content(2).summary, "2 rows · retention Forever");
    prefer("historyRetentionDays", std::int64_t{31});
    EXPECT_EQ(content(2).summary, "2 rows · retention 1 year");
}

TEST_F(BreakHistoryTest, EmptyLineSaysWhetherItHasLooked) {
    EXPECT_EQ(content(0, false).emptyLine, "…");
    EXPECT_EQ(content(0, true).emptyLine, "Nothing recorded in this range.");
    EXPECT_EQ(content(1).emptyLine, std::nullopt);
}

TEST_F(BreakHistoryTest, RangesReachBackByWholeDays) {
    recordPause("07:00:00", "00:00:00");
    recordPause("2026-03-03 07:00:00", "2026-03-03 00:00:00");
    recordPause("2026-03-02 07:00:00", "2026-03-02 00:00:00");
    recordPause("2026-02-08 07:00:00", "2026-02-08 00:00:00");
    recordPause("2026-02-07 07:00:00", "2026-02-07 00:00:00");
    EXPECT_EQ(loaded().entries().size(), 1U);
    list().setRange(DayRange::week);
    settleAll();
    EXPECT_EQ(list().entries().size(), 2U);
    list().setRange(DayRange::month);
    settleAll();
    EXPECT_EQ(list().entries().size(), 4U);
}

TEST_F(BreakHistoryTest, RangesAreNamed) {
    EXPECT_EQ(label(DayRange::today), "Today");
    EXPECT_EQ(label(DayRange::week), "7 days");
    EXPECT_EQ(label(DayRange::month), "30 days");
}

TEST_F(BreakHistoryTest, TodayIsThatOfThePresentTime) {
    start();
    recordPause("07:00:00", "00:00:00");
    jumpTo("2026-03-10 07:00:00");
    EXPECT_EQ(loaded().entries().size(), 0U);
}

TEST_F(BreakHistoryTest, FiveHundredEntriesAtMost) {
    for (int index = 0; index < 501; ++index) {
        store->recordPause({.startedAt = at("07:00:00"), .seconds = 1, .dayStart = at("00:00:00")}, {});
    }
    settleAll();
    EXPECT_EQ(loaded().entries().size(), 500U);
}

TEST_F(BreakHistoryTest, RangeChosenBeforeTheFirstLoadWaitsForIt) {
    list().setRange(DayRange::week);
    settleAll();
    EXPECT_FALSE(list().hasLoaded());
}

TEST_F(BreakHistoryTest, WithoutAStoreItIsEmpty) {
    store.reset();
    EXPECT_TRUE(loaded().hasLoaded());
    EXPECT_TRUE(list().entries().empty());
}

TEST_F(BreakHistoryTest, BreakLoadsAnewAndATickDoesNot) {
    start();
    loaded();
    recordPause("07:00:00", "00:00:00");
    EXPECT_EQ(list().reloadToken(), "today-0-0");
    list().loadIfChanged();
    settleAll();
    EXPECT_EQ(list().entries().size(), 0U);
    prefer("enforcementLevel", std::string("casual"));
    engine().beginBreak(now());
    engine().skipCurrentBreak();
    EXPECT_EQ(list().reloadToken(), "today-0-1");
    list().loadIfChanged();
    settleAll();
    EXPECT_EQ(list().entries().size(), 1U);
}

TEST_F(BreakHistoryTest, AnswersToAnEarlierLoadAreDropped) {
    recordPause("2026-03-08 07:00:00", "2026-03-08 00:00:00");
    loaded().setRange(DayRange::week);
    list().setRange(DayRange::today);
    int changes = 0;
    const auto subscription = list().observe([&changes] { ++changes; });
    settleAll();
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(list().entries().empty());
}

TEST_F(BreakHistoryTest, ColumnsAreTold) {
    constexpr std::array<std::pair<std::string_view, int>, 5> expected{
        {{"Started", 96}, {"Type", 116}, {"Duration", 96}, {"Task credited", 0}, {"Display", 90}}};
    ASSERT_EQ(BreakHistoryContent::columns.size(), expected.size());
    for (std::size_t column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(BreakHistoryContent::columns[column].header, expected[column].first);
        EXPECT_EQ(BreakHistoryContent::columns[column].width, expected[column].second);
    }
    EXPECT_EQ(BreakHistoryContent::footnote,
              "Stored in SwiftData behind a versioned schema · pruning runs at most once a day");
}

} // namespace
} // namespace kestrelfen
