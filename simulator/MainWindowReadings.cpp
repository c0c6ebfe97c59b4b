#include "DashboardVisit.hpp"
#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "Values.hpp"
#include "core/Settings.hpp"
#include "ui/BreakHistoryView/BreakHistoryContent.hpp"
#include "ui/BreakHistoryView/HistoryList.hpp"
#include "ui/MainWindowView/MainWindowContent.hpp"
#include "ui/ScreenTimeView/DashboardContent.hpp"
#include "ui/UsageDetailView/UsageDetail.hpp"
#include "ui/UsageDetailView/UsageDetailContent.hpp"

namespace kestrelfen {

namespace {

template <typename Case>
Case takeCase(Arguments& arguments, const char* what, const char* isNone) {
    const std::string& word = arguments.take(what);
    const auto found = fromRawValue<Case>(word);
    if (!found) {
        throw ScenarioError(quoted(word) + isNone);
    }
    return *found;
}

DayRange takeRange(Arguments& arguments) {
    return takeCase<DayRange>(arguments, "RANGE", " is no range");
}

Json objectOf(const WeekContent::Bar& bar) {
    return {{"startOfDay", jsonOf(bar.summary.startOfDay)},
            {"breaksCompleted", bar.summary.breaksCompleted},
            {"breaksSkipped", bar.summary.breaksSkipped},
            {"activeSeconds", bar.summary.activeSeconds},
            {"isToday", bar.isToday},
            {"keptLabel", bar.keptLabel},
            {"tint", bar.tint}};
}

Json objectOf(const HeroContent::Button& button) {
    return {{"label", button.label}, {"enabled", button.enabled}};
}

Json objectOf(const HeroContent::Stat& stat) {
    return {{"value", stat.value}, {"label", stat.label}};
}

Json objectOf(const UsageCardContent::Row& row) {
    return {{"name", row.name}, {"seconds", row.seconds}, {"fraction", row.fraction}};
}

Json objectOf(const UsageDetailContent::Chip& chip) {
    return {{"category", chip.category ? rawValue(*chip.category) : "all"}, {"count", chip.count}};
}

Json objectOf(const UsageDetailContent::Row& row) {
    return {{"name", row.name},
            {"detail", jsonOf(row.detail)},
            {"time", row.time},
            {"share", row.share},
            {"fraction", row.fraction},
            {"category", row.category ? Json(rawValue(*row.category)) : Json(nullptr)}};
}

template <typename Items>
Json listOf(const Items& items) {
    Json list = Json::array();
    for (const auto& item : items) {
        list.push_back(objectOf(item));
    }
    return list;
}

Json scoreOf(const Dashboard& dashboard) {
    const EyeScore score = dashboard.eyeScore();
    const auto content = DashboardContent::of(dashboard);
    return {{"score", score.score},
            {"label", content.score.label},
            {"keptRatio", score.keptRatio},
            {"daysWithinTarget", score.daysWithinTarget},
            {"daysCounted", score.daysCounted},
            {"longestStretch", score.longestStretch},
            {"stretchTarget", score.stretchTarget},
            {"streak", dashboard.streak()},
            {"suggestion", content.score.suggestion},
            {"chartSubtitle", content.week.subtitle},
            {"bars", listOf(content.week.bars)}};
}

Json dashboardOf(const Dashboard& dashboard, const Preferences& preferences) {
    const auto content = DashboardContent::of(dashboard);
    return {{"meta", MainWindowContent::of(dashboard.engine(), preferences).meta},
            {"banner", jsonOf(content.banner)},
            {"ringRemaining", content.hero.ringRemaining},
            {"ringLabel", content.hero.ringLabel},
            {"ringCaption", content.hero.ringCaption},
            {"headline", content.hero.headline},
            {"subhead", content.hero.subhead},
            {"buttons", listOf(content.hero.buttons)},
            {"stats", listOf(content.hero.stats)},
            {"usageSource", rawValue(content.usage.source)},
            {"usageRows", listOf(content.usage.rows)},
            {"emptyUsageNote", jsonOf(content.usage.emptyNote)}};
}

Json scoreReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    Json json;
    withDashboard(simulation, [&json](const Dashboard& dashboard) { json = scoreOf(dashboard); });
    return json;
}

Json dashboardReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    Json json;
    withDashboard(simulation, [&](const Dashboard& dashboard) {
        json = dashboardOf(dashboard, simulation.world().preferences);
    });
    return json;
}

Json breaksReading(Simulation& simulation, Arguments& arguments) {
    const DayRange range = takeRange(arguments);
    arguments.end();
    SimulatedProgram& program = simulation.program();
    HistoryList list(simulation.world().ports(), program.engine(), program.store());
    list.setRange(range);
    list.load();
    simulation.settle();
    Json rows = Json::array();
    for (const HistoryEntry& entry : list.entries()) {
        rows.push_back(BreakHistoryRow::of(entry, simulation.world().timeFormat).columns());
    }
    const auto content =
        BreakHistoryContent::of(list.entries().size(), list.hasLoaded(), simulation.world().preferences);
    return {{"summary", content.summary}, {"rows", rows}, {"empty", jsonOf(content.emptyLine)}};
}

/// Absent for all of them.
std::optional<AppCategory> takeCategory(Arguments& arguments) {
    const std::string word = arguments.empty() ? "all" : arguments.take("CATEGORY");
    const auto category = fromRawValue<AppCategory>(word);
    if (!category && word != "all") {
        throw ScenarioError(quoted(word) + " is no category");
    }
    return category;
}

Json usageReading(Simulation& simulation, Arguments& arguments) {
    const auto source = takeCase<UsageSource>(arguments, "SOURCE", " is not apps or websites");
    const DayRange range = takeRange(arguments);
    const auto category = takeCategory(arguments);
    arguments.end();
    SimulatedProgram& program = simulation.program();
    UsageDetail detail(simulation.world().ports(), program.store(),
                       {.dayStart = program.engine().rollover().currentDayStart(),
                        .source = source,
                        .apps = {},
                        .websites = {}});
    detail.setRange(range);
    detail.setCategory(category);
    detail.load();
    simulation.settle();
    const auto content = UsageDetailContent::of(detail);
    return {{"summaryLine", content.summaryLine},
            {"chips", listOf(content.chips)},
            {"rows", listOf(content.rows)},
            {"placeholder", jsonOf(content.placeholder)}};
}

FormList usageForms() {
    return joined({formsBehind("*", rawValueForms<DayRange>()), rawValueForms<UsageSource>(),
                   formsBehind("* *", joined({rawValueForms<AppCategory>(), {"all"}}))});
}

constexpr std::array<NamedReader, 4> readers{{{"score", scoreReading},
                                              {"dashboard", dashboardReading},
                                              {"breaks", breaksReading, rawValueForms<DayRange>},
                                              {"usage", usageReading, usageForms}}};

} // namespace

Readers mainWindowReaders() {
    return readers;
}

} // namespace kestrelfen
