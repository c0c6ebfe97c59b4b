#include "Commands.hpp"
#include "DashboardVisit.hpp"
#include "ScenarioError.hpp"
#include "Values.hpp"
#include "sensing/AppCategory.hpp"
#include "ui/ScreenTimeView/DashboardActions.hpp"
#include "ui/ScreenTimeView/DashboardContent.hpp"

namespace kestrelfen {

namespace {

/// Null for a day that has none, also where the zone left that date out.
const Week::Bar* barOf(CivilDay day, const Week& week, const Calendar& calendar) {
    const Date start = calendar.startOfDay(day);
    return calendar.civilTime(start).day == day ? week.barOf(start) : nullptr;
}

void hover(Simulation& simulation, Arguments& arguments) {
    const std::string word = arguments.take("DAY or none");
    const auto day = word == "none" ? std::nullopt : std::optional(dayOf(word));
    arguments.end();
    withDashboard(simulation, [&](Dashboard& dashboard) {
        const Week week = dashboard.lastSevenDays();
        const Week::Bar* const bar = day ? barOf(*day, week, simulation.world().calendar) : nullptr;
        if (day && !bar) {
            notAvailable();
        } else {
            dashboard.setHoveredDay(bar ? std::optional(bar->summary.startOfDay) : std::nullopt);
        }
    });
}

void category(Simulation& simulation, Arguments& arguments) {
    const std::string bundleIdentifier = arguments.take("BUNDLE");
    const std::string word = arguments.take("VALUE");
    arguments.end();
    const auto chosen = fromRawValue<AppCategory>(word);
    if (!chosen && word != "reset") {
        throw ScenarioError(quoted(word) + " is no category");
    }
    simulation.program();
    Preferences& preferences = simulation.world().preferences;
    if (chosen) {
        setCategory(*chosen, bundleIdentifier, preferences);
    } else if (hasOverride(bundleIdentifier, preferences)) {
        clearOverride(bundleIdentifier, preferences);
    } else {
        notAvailable();
    }
}

FormList categoryForms() {
    return formsBehind("*", joined({rawValueForms<AppCategory>(), {"reset"}}));
}

using Click = void (DashboardActions::*)();

constexpr std::array<Click, 3> clicks{&DashboardActions::breakNowOrEnd, &DashboardActions::postpone,
                                      &DashboardActions::pauseOrResume};

constexpr std::array<NamedCommand, 2> commands{{{"hover", hover,
                                                 [] {
                                                     return FormList{"*", "none"};
                                                 }},
                                                {"category", category, categoryForms}}};

} // namespace

void pressDashboard(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("1, 2 or 3");
    arguments.end();
    const std::int64_t number = integerOf(word);
    if (number < 1 || number > 3) {
        throw ScenarioError(quoted(word) + " is not 1, 2 or 3");
    }
    const auto index = static_cast<std::size_t>(number - 1);
    withDashboard(simulation, [&](const Dashboard& dashboard) {
        if (DashboardContent::of(dashboard).hero.buttons.at(index).enabled) {
            DashboardActions actions(simulation.program().engine(), simulation.world().ports());
            (actions.*clicks.at(index))();
        } else {
            notAvailable();
        }
    });
}

void chooseUsageSource(Simulation& simulation, const std::string& word) {
    const auto source = fromRawValue<UsageSource>(word);
    if (!source) {
        throw ScenarioError(quoted(word) + " is not offered");
    }
    withDashboard(simulation, [source](Dashboard& dashboard) { dashboard.setUsageSource(*source); });
}

Commands mainWindowCommands() {
    return commands;
}

} // namespace kestrelfen
