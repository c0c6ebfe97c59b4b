#include "ui/ScreenTimeView/WeekContent.hpp"

#include "base/Translated.hpp"
#include "core/Formatters.hpp"
#include "platform/ports/TimeFormat.hpp"
#include "screentime/WeekWords.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::string_view separator = " · ";

/// Above this share of the scale a line for the target would lie on the chart's upper edge.
constexpr double highestTargetLine = 0.92;
constexpr double lowestBar = 3;

std::string joined(std::string_view first, std::string_view second) {
    return std::string(first).append(separator).append(second);
}

std::string dayText(const DaySummary& day, const TimeFormat& timeFormat) {
    return joined(joined(timeFormat.shortDay(day.startOfDay), Formatters::activeTime(day.activeSeconds)),
                  translatedCount(day.breaksCompleted, "%1 break", "%1 breaks"));
}

std::string weekText(const Week& week) {
    if (!(week.average() > 0) && !week.kept()) {
        return translated("Nothing recorded this week yet");
    }
    return joined(translated("Daily average %1", {Formatters::activeTime(week.average())}),
                  translated("%1 kept", {keptPercentLabel(week.kept())}));
}

std::string sentenceOf(const Week::Bar& bar, const TimeFormat& timeFormat) {
    const std::string text = dayText(bar.summary, timeFormat);
    return bar.kept() ? joined(text, translated("%1 kept", {keptPercentLabel(bar.kept())})) : text;
}

std::vector<WeekContent::Gridline> gridlinesOf(double scaleTop) {
    std::vector<WeekContent::Gridline> lines;
    for (const double height : {1.0, 0.5, 0.0}) {
        lines.push_back({height, axisLabel(scaleTop * height)});
    }
    return lines;
}

std::optional<double> targetLineOf(double target, double scaleTop) {
    const bool isDrawn = target > 0 && target < highestTargetLine * scaleTop;
    return isDrawn ? std::optional(target / scaleTop) : std::nullopt;
}

} // namespace

WeekContent WeekContent::of(const Week& week, const ScreenTimeTargets& targets,
                            const std::optional<Date>& hoveredDay, const TimeFormat& timeFormat) {
    const Week::Bar* const hovered = hoveredDay ? week.barOf(*hoveredDay) : nullptr;
    const double scaleTop = week.scaleTop(targets);
    WeekContent content;
    content.subtitle = hovered ? dayText(hovered->summary, timeFormat) : weekText(week);
    content.isHovering = hovered != nullptr;
    for (const Week::Bar& bar : week.bars()) {
        content.bars.push_back({.summary = bar.summary,
                                .isToday = bar.isToday,
                                .isHovered = &bar == hovered,
                                .height = bar.summary.activeSeconds / scaleTop,
                                .keptLabel = keptPercentLabel(bar.kept()),
                                .tint = keptTint(bar.kept(), bar.isToday),
                                .weekday = timeFormat.weekday(bar.summary.startOfDay),
                                .sentence = sentenceOf(bar, timeFormat)});
    }
    content.gridlines = gridlinesOf(scaleTop);
    content.targetLine = targetLineOf(targets.day, scaleTop);
    content.targetLegend = translated("Your %1 target", {targetLabel(targets.day)});
    return content;
}

double WeekContent::Bar::points(double plotHeight) const {
    return height > 0 ? std::max(height * plotHeight, lowestBar) : 0.0;
}

} // namespace kestrelfen
