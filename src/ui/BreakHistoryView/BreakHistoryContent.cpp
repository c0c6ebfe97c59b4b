#include "ui/BreakHistoryView/BreakHistoryContent.hpp"

#include "core/Formatters.hpp"
#include "core/HistoryRetention.hpp"
#include "platform/ports/TimeFormat.hpp"

namespace kestrelfen {

namespace {

using Kind = HistoryEntry::Kind::Case;

constexpr const char* dash = "—";

std::string_view tintOf(Kind kind) {
    switch (kind) {
    case Kind::completed:
        return "accent";
    case Kind::paused:
        return "slate";
    case Kind::skipped:
        return "amber";
    }
    return {};
}

std::string taskOf(const HistoryEntry& entry) {
    if (entry.taskTitle) {
        return *entry.taskTitle;
    }
    return entry.kind.kind == Kind::paused ? translated("not counted as screen time") : dash;
}

} // namespace

BreakHistoryRow BreakHistoryRow::of(const HistoryEntry& entry, const TimeFormat& timeFormat) {
    return {.started = timeFormat.shortTime(entry.startedAt),
            .type = translated(label(entry.kind)),
            .typeTint = tintOf(entry.kind.kind),
            .duration = entry.seconds ? Formatters::countdown(*entry.seconds) : dash,
            .task = taskOf(entry),
            .isWithoutTask = !entry.taskTitle,
            .display = entry.displayCount < 1
                           ? dash
                           : translatedCount(entry.displayCount, "%1 screen", "%1 screens")};
}

std::array<std::string, 5> BreakHistoryRow::columns() const {
    return {started, type, duration, task, display};
}

std::string BreakHistoryRow::sentence() const {
    std::string text;
    for (const std::string& column : columns()) {
        if (column != dash) {
            text += (text.empty() ? "" : ", ") + column;
        }
    }
    return text;
}

BreakHistoryContent BreakHistoryContent::of(std::size_t rowCount, bool hasLoaded,
                                            const Preferences& preferences) {
    const HistoryRetention retention = chosenRetention(preferences);
    BreakHistoryContent content;
    content.summary = translatedCount(static_cast<std::int64_t>(rowCount), "%1 row", "%1 rows") + " · " +
                      translated("retention %1", {translated(label(retention))});
    if (rowCount == 0) {
        content.emptyLine = hasLoaded ? translated("Nothing recorded in this range.") : "…";
    }
    return content;
}

} // namespace kestrelfen
