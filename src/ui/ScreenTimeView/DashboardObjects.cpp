#include "ui/ScreenTimeView/DashboardObjects.hpp"

#include "base/Translated.hpp"
#include "ui/ShownText.hpp"

#include <QVariantList>

namespace kestrelfen {

namespace {

QString text(std::string_view words) {
    return shownText(words);
}

QVariantMap objectOf(const HeroContent::Stat& stat) {
    return {{"value", text(stat.value)}, {"label", text(stat.label)}, {"tint", text(stat.tint)}};
}

QVariantMap objectOf(const WeekContent::Bar& bar) {
    return {{"isToday", bar.isToday},        {"isHovered", bar.isHovered}, {"height", bar.height},
            {"kept", text(bar.keptLabel)},   {"tint", text(bar.tint)},     {"weekday", text(bar.weekday)},
            {"sentence", text(bar.sentence)}};
}

QVariantMap objectOf(const WeekContent::Gridline& line) {
    return {{"height", line.height}, {"label", text(line.label)}};
}

QVariantMap objectOf(const ScoreMeter& meter) {
    return {{"title", text(meter.title)},
            {"value", text(meter.value)},
            {"fraction", meter.fraction},
            {"tint", text(meter.tint)}};
}

template <typename Items>
QVariantList listOf(const Items& items) {
    QVariantList list;
    for (const auto& item : items) {
        list.append(objectOf(item));
    }
    return list;
}

} // namespace

QVariantMap objectOf(const HeroContent& hero) {
    return {{"ringRemaining", hero.ringRemaining},   {"ringLabel", text(hero.ringLabel)},
            {"ringCaption", text(hero.ringCaption)}, {"headline", text(hero.headline)},
            {"subhead", text(hero.subhead)},         {"stats", listOf(hero.stats)}};
}

QVariantMap objectOf(const WeekContent& week) {
    return {{"title", text(translated(WeekContent::title))},
            {"subtitle", text(week.subtitle)},
            {"isHovering", week.isHovering},
            {"bars", listOf(week.bars)},
            {"gridlines", listOf(week.gridlines)},
            {"targetLine", week.targetLine.value_or(-1)},
            {"targetMark", text(translated(WeekContent::targetMark))},
            {"screenTimeLegend", text(translated(WeekContent::screenTimeLegend))},
            {"targetLegend", text(week.targetLegend)},
            {"keptLegend", text(translated(WeekContent::keptLegend))},
            {"labelsHeight", WeekContent::labelsHeight},
            {"headroom", WeekContent::headroom}};
}

QVariantMap objectOf(const ScoreContent& score) {
    return {{"title", text(translated(ScoreContent::title))},
            {"caption", text(translated(ScoreContent::caption))},
            {"value", text(score.value)},
            {"valueTint", text(score.valueTint)},
            {"label", text(score.label)},
            {"labelTint", text(score.labelTint)},
            {"meters", listOf(score.meters)},
            {"suggestion", text(score.suggestion)}};
}

QVariantMap objectOf(const UsageCardContent& usage) {
    return {{"source", text(rawValue(usage.source))},
            {"title", text(usage.title)},
            {"seeAll", text(translated(UsageCardContent::seeAll))},
            {"emptyNote", usage.emptyNote ? text(*usage.emptyNote) : QString()},
            {"footnote", text(usage.footnote)}};
}

QVariantMap objectOf(const UsageCardContent::Row& row) {
    return {{"name", text(row.name)}, {"time", text(row.time)}, {"fraction", row.fraction}};
}

} // namespace kestrelfen
