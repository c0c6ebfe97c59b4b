#include "store/HistoryCSV.hpp"
#include "store/StoreHarness.hpp"

#include <algorithm>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string header = "started_at,type,duration_seconds,task,displays\n";

HistoryEntry pauseEntry(PauseKind kind, double seconds = 300) {
    return {"p-1", at("14:05:00"), HistoryEntry::Kind::paused(kind), seconds, std::nullopt, 0};
}

HistoryEntry breakEntry(double seconds, std::optional<std::string> title, std::int64_t displays = 2) {
    return {"b-1", at("14:05:00"), HistoryEntry::Kind::completed(false), seconds, std::move(title), displays};
}

/// The line of one entry, without the line feed that ends it.
std::string lineOf(const HistoryEntry& entry) {
    HistoryCSV csv;
    csv.add(entry);
    const std::string text = csv.take();
    return text.substr(header.size(), text.size() - header.size() - 1);
}

TEST(CSVLine, tellsACompletedBreak) {
    EXPECT_EQ(lineOf(breakEntry(20, "Write")), "2026-03-09T14:05:00Z,Completed,20,Write,2");
}

TEST(CSVLine, tellsALongBreak) {
    HistoryEntry entry = breakEntry(300, std::nullopt, 1);
    entry.kind = HistoryEntry::Kind::completed(true);
    EXPECT_EQ(lineOf(entry), "2026-03-09T14:05:00Z,Long break,300,,1");
}

TEST(CSVLine, tellsASkippedBreakWithoutDuration) {
    HistoryEntry entry = breakEntry(0, "Write");
    entry.kind = HistoryEntry::Kind::skipped();
    entry.seconds = std::nullopt;
    EXPECT_EQ(lineOf(entry), "2026-03-09T14:05:00Z,Skipped,,Write,2");
}

TEST(CSVLine, tellsAPauseWithTwoEmptyLastFields) {
    EXPECT_EQ(lineOf(pauseEntry(PauseKind::userIdle)), "2026-03-09T14:05:00Z,Paused \xC2\xB7 idle,300,,");
}

TEST(CSVLine, namesEveryKindOfPause) {
    std::string names;
    for (const PauseKind kind : allCases<PauseKind>()) {
        const std::string line = lineOf(pauseEntry(kind));
        const std::size_t begin = line.find("Paused \xC2\xB7 ") + 10;
        names += line.substr(begin, line.find(',', begin) - begin) + " ";
    }
    EXPECT_EQ(names, "manual sleep lock display idle call video sharing focus ");
}

TEST(CSVLine, roundsSecondsToWholeOnes) {
    const auto secondsOf = [](double seconds) {
        const std::string line = lineOf(breakEntry(seconds, std::nullopt));
        return line.substr(31, line.size() - 31 - 3);
    };
    EXPECT_EQ(secondsOf(19.6), "20");
    EXPECT_EQ(secondsOf(19.4), "19");
    EXPECT_EQ(secondsOf(19.5), "20");
    EXPECT_EQ(secondsOf(20.5), "20");
    EXPECT_EQ(secondsOf(0), "0");
    EXPECT_EQ(secondsOf(-0.2), "-0");
    EXPECT_EQ(secondsOf(1'234'567.5), "1234568");
    EXPECT_EQ(secondsOf(1e300).size(), 301U);
}

TEST(CSVLine, cutsTimesToWholeSeconds) {
    HistoryEntry entry = pauseEntry(PauseKind::manual);
    entry.startedAt = at("14:05:59.999999");
    EXPECT_THAT(lineOf(entry), HasSubstr("2026-03-09T14:05:59Z"));
    entry.startedAt = Date::fromMicroseconds(-1);
    EXPECT_THAT(lineOf(entry), HasSubstr("1969-12-31T23:59:59Z"));
    entry.startedAt = Date::fromMicroseconds(-1'500'000);
    EXPECT_THAT(lineOf(entry), HasSubstr("1969-12-31T23:59:58Z"));
}

TEST(CSVLine, hasNoDisplaysBelowOne) {
    EXPECT_EQ(lineOf(breakEntry(20, "Write", 0)), "2026-03-09T14:05:00Z,Completed,20,Write,");
    EXPECT_EQ(lineOf(breakEntry(20, "Write", -1)), "2026-03-09T14:05:00Z,Completed,20,Write,");
    EXPECT_EQ(lineOf(breakEntry(20, "Write", 1)), "2026-03-09T14:05:00Z,Completed,20,Write,1");
}

TEST(CSVLine, quotesAFieldThatNeedsIt) {
    const auto taskOf = [](const std::string& title) {
        const std::string line = lineOf(breakEntry(20, title));
        return line.substr(34, line.size() - 34 - 2);
    };
    EXPECT_EQ(taskOf("plain; text\ttoo"), "plain; text\ttoo");
    EXPECT_EQ(taskOf("a, \"b\""), "\"a, \"\"b\"\"\"");
    EXPECT_EQ(taskOf("\""), "\"\"\"\"");
    EXPECT_EQ(taskOf("a\nb"), "\"a\nb\"");
    EXPECT_EQ(taskOf("a\rb"), "\"a\rb\"");
    EXPECT_EQ(taskOf(","), "\",\"");
    EXPECT_EQ(taskOf(""), "");
    EXPECT_EQ(taskOf("\xF0\x9F\xA6\x85"), "\xF0\x9F\xA6\x85");
}

class CSV : public StoreTest {};

TEST_F(CSV, ofAnEmptyHistoryIsTheHeader) {
    EXPECT_EQ(historyCSV(), header);
}

TEST_F(CSV, holdsTheHistoryInItsOrder) {
    BreakEntry skipped = titled(skippedBreak(at("10:00:00")), "Write");
    skipped.displayCount = 2;
    recordBreak(skipped);
    recordPause(pauseOf(PauseKind::userIdle, at("11:00:00"), 300));
    recordBreak(titled(completedBreak(at("09:00:00"), 19.6), "Plan \"A\", then B"));
    EXPECT_EQ(historyCSV(), header + "2026-03-09T11:00:00Z,Paused \xC2\xB7 idle,300,,\n"
                                     "2026-03-09T10:00:00Z,Skipped,,Write,2\n"
                                     "2026-03-09T09:00:00Z,Completed,20,\"Plan \"\"A\"\", then B\",1\n");
}

TEST_F(CSV, beginsAtTheDateThatIsAsked) {
    recordBreak(completedBreak(at("2026-03-08 09:00:00"), 20, yesterday()));
    recordBreak(completedBreak(at("09:00:00"), 20));
    EXPECT_EQ(historyCSV(today()), header + "2026-03-09T09:00:00Z,Completed,20,,1\n");
}

TEST_F(CSV, holdsTheNewestHundredThousandEntries) {
    execute("INSERT INTO DayRecord (startOfDay) VALUES (0);"
            "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 100002) "
            "INSERT INTO PauseRecord (startedAt, seconds, day) SELECT i * 1000000, 60, 1 FROM n");
    const std::string text = historyCSV();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 100'001);
    EXPECT_EQ(text.substr(header.size(), 20), "1970-01-02T03:46:42Z");
    EXPECT_THAT(text.substr(text.size() - 60), HasSubstr("\n1970-01-01T00:00:03Z,"));
}

} // namespace
} // namespace kestrelfen
