#include "Readers.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "core/Settings.hpp"
#include "store/HistoryCSV.hpp"

namespace kestrelfen {

namespace {

/// What the store answers to the question that `ask` puts; without a store, what an empty one would.
template <typename Answer, typename Ask>
Answer answerOf(Simulation& simulation, Answer answer, Ask ask) {
    if (KestrelfenStore* const store = simulation.program().store()) {
        ask(*store, [&answer](Answer given) { answer = std::move(given); });
        simulation.settle();
    }
    return answer;
}

Date takeDay(Simulation& simulation, Arguments& arguments) {
    return simulation.world().calendar.startOfDay(dayOf(arguments.take("DAY")));
}

/// The first instant of the day that is named last, or else of the present one.
Date takeLastDay(Simulation& simulation, Arguments& arguments) {
    const Calendar& calendar = simulation.world().calendar;
    const Date day = arguments.empty() ? calendar.startOfDay(simulation.world().clock.now())
                                       : takeDay(simulation, arguments);
    arguments.end();
    return day;
}

Date takeOnlyDay(Simulation& simulation, Arguments& arguments) {
    const Date day = takeDay(simulation, arguments);
    arguments.end();
    return day;
}

std::int64_t takeLimit(Arguments& arguments) {
    return integerOf(arguments.take("LIMIT"));
}

Json objectOf(const DaySummary& summary) {
    return {{"startOfDay", jsonOf(summary.startOfDay)}, {"breaksCompleted", summary.breaksCompleted},
            {"breaksSkipped", summary.breaksSkipped},   {"activeSeconds", summary.activeSeconds},
            {"pausedSeconds", summary.pausedSeconds},   {"longBreaksCompleted", summary.longBreaksCompleted}};
}

Json objectOf(const AppUsageSummary& usage) {
    return {{"bundleIdentifier", usage.bundleIdentifier},
            {"displayName", usage.displayName},
            {"displayID", usage.displayID},
            {"activeSeconds", usage.activeSeconds}};
}

Json objectOf(const WebsiteUsageSummary& usage) {
    return {{"domain", usage.domain}, {"activeSeconds", usage.activeSeconds}};
}

Json objectOf(const AppTotal& total) {
    return {{"bundleIdentifier", total.bundleIdentifier},
            {"displayName", total.displayName},
            {"activeSeconds", total.activeSeconds},
            {"displayCount", total.displayCount}};
}

Json objectOf(const WebsiteTotal& total) {
    return {{"domain", total.domain}, {"activeSeconds", total.activeSeconds}, {"dayCount", total.dayCount}};
}

Json objectOf(const HistoryEntry& entry) {
    using Case = HistoryEntry::Kind::Case;
    const auto& [kind, isLong, reason] = entry.kind;
    constexpr std::array<const char*, 3> names{"completed", "paused", "skipped"};
    return {{"startedAt", jsonOf(entry.startedAt)},
            {"kind", names[static_cast<std::size_t>(kind)]},
            {"isLong", kind == Case::completed ? Json(isLong) : Json(nullptr)},
            {"reason", kind == Case::paused ? Json(rawValue(reason)) : Json(nullptr)},
            {"seconds", jsonOf(entry.seconds)},
            {"taskTitle", jsonOf(entry.taskTitle)},
            {"displayCount", entry.displayCount}};
}

Json objectOf(const TaskSummary& task) {
    return {{"title", task.title},
            {"notes", task.notes},
            {"createdAt", jsonOf(task.createdAt)},
            {"completedAt", jsonOf(task.completedAt)},
            {"dueOn", jsonOf(task.dueOn)},
            {"sortIndex", task.sortIndex},
            {"estimatedBreaks", task.estimatedBreaks},
            {"completedBreaks", task.completedBreaks}};
}

template <typename Row, typename Ask>
Json rowsOf(Simulation& simulation, Ask ask) {
    Json rows = Json::array();
    for (const Row& row : answerOf(simulation, std::vector<Row>(), ask)) {
        rows.push_back(objectOf(row));
    }
    return rows;
}

Json dayReading(Simulation& simulation, Arguments& arguments) {
    const Date day = takeLastDay(simulation, arguments);
    DaySummary none;
    none.startOfDay = day;
    return objectOf(answerOf(simulation, none, [day](KestrelfenStore& store, auto answer) {
        store.summary(day, std::move(answer));
    }));
}

Json daysReading(Simulation& simulation, Arguments& arguments) {
    const Date since = takeOnlyDay(simulation, arguments);
    return {{"days", rowsOf<DaySummary>(simulation, [since](KestrelfenStore& store, auto answer) {
                 store.summaries(since, std::move(answer));
             })}};
}

Json appsReading(Simulation& simulation, Arguments& arguments) {
    const std::int64_t limit = takeLimit(arguments);
    const Date day = takeLastDay(simulation, arguments);
    return {{"rows", rowsOf<AppUsageSummary>(simulation, [day, limit](KestrelfenStore& store, auto answer) {
                 store.appUsage(day, limit, std::move(answer));
             })}};
}

Json sitesReading(Simulation& simulation, Arguments& arguments) {
    const std::int64_t limit = takeLimit(arguments);
    const Date day = takeLastDay(simulation, arguments);
    return {
        {"rows", rowsOf<WebsiteUsageSummary>(simulation, [day, limit](KestrelfenStore& store, auto answer) {
             store.websiteUsage(day, limit, std::move(answer));
         })}};
}

Json appTotalsReading(Simulation& simulation, Arguments& arguments) {
    const Date since = takeOnlyDay(simulation, arguments);
    return {{"rows", rowsOf<AppTotal>(simulation, [since](KestrelfenStore& store, auto answer) {
                 store.appTotals(since, std::move(answer));
             })}};
}

Json siteTotalsReading(Simulation& simulation, Arguments& arguments) {
    const Date since = takeOnlyDay(simulation, arguments);
    return {{"rows", rowsOf<WebsiteTotal>(simulation, [since](KestrelfenStore& store, auto answer) {
                 store.websiteTotals(since, std::move(answer));
             })}};
}

Json stretchReading(Simulation& simulation, Arguments& arguments) {
    const Date day = takeLastDay(simulation, arguments);
    const Date now = simulation.world().clock.now();
    return {{"seconds", answerOf(simulation, 0.0, [day, now](KestrelfenStore& store, auto answer) {
                 store.longestStretch(day, now, std::move(answer));
             })}};
}

Json historyReading(Simulation& simulation, Arguments& arguments) {
    const Date since = takeDay(simulation, arguments);
    const std::int64_t limit = takeLimit(arguments);
    arguments.end();
    return {{"rows", rowsOf<HistoryEntry>(simulation, [since, limit](KestrelfenStore& store, auto answer) {
                 store.history(since, limit, std::move(answer));
             })}};
}

Json csvReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const Date since =
        HistoryDataActions::exportStart(simulation.world().calendar, simulation.world().clock.now());
    return {{"text", answerOf(simulation, HistoryCSV().take(), [since](KestrelfenStore& store, auto answer) {
                 store.historyCSV(since, std::move(answer));
             })}};
}

Json tasksReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    const auto tasks = answerOf(simulation, std::vector<TaskSummary>(),
                                [](KestrelfenStore& store, auto answer) { store.tasks(std::move(answer)); });
    const auto active = Settings::activeTaskID(simulation.world().preferences);
    Json rows = Json::array();
    for (const TaskSummary& task : tasks) {
        rows.push_back(objectOf(task));
        rows.back()["active"] = task.id == active;
    }
    return {{"rows", rows}};
}

constexpr std::array<NamedReader, 10> readers{{{"day", dayReading},
                                               {"days", daysReading},
                                               {"apps", appsReading},
                                               {"sites", sitesReading},
                                               {"app-totals", appTotalsReading},
                                               {"site-totals", siteTotalsReading},
                                               {"stretch", stretchReading},
                                               {"history", historyReading},
                                               {"csv", csvReading},
                                               {"tasks", tasksReading}}};

} // namespace

Readers historyReaders() {
    return readers;
}

} // namespace kestrelfen
