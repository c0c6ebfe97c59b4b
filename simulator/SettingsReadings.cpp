#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/AppListEditor/AppListEditor.hpp"
#include "ui/AppListEditor/SmartPauseWords.hpp"
#include "ui/SettingsWindowView/AboutPane.hpp"
#include "ui/SettingsWindowView/AppearancePane.hpp"
#include "ui/SettingsWindowView/EnforcementPane.hpp"
#include "ui/SettingsWindowView/NotificationsPane.hpp"
#include "ui/SettingsWindowView/PausingPane.hpp"
#include "ui/SettingsWindowView/SmartPausePane.hpp"
#include "ui/SettingsWindowView/TimingPane.hpp"
#include "ui/SettingsWindowView/WebsiteStats.hpp"
#include "ui/SettingsWindowView/WebsiteStatsPane.hpp"

namespace kestrelfen {

namespace {

PaneContent timingPane(Simulation& simulation) {
    LaunchAtLogin& launchAtLogin = simulation.program().launchAtLogin();
    launchAtLogin.reload();
    return TimingPane::content(simulation.world().preferences, launchAtLogin);
}

PaneContent websiteStatsPane(Simulation& simulation) {
    WebsiteStats stats(simulation.world().ports(), simulation.program().delegate().browserScripting());
    stats.reload();
    simulation.settle();
    return WebsiteStatsPane::content(stats);
}

PaneContent contentOf(SettingsPane pane, Simulation& simulation) {
    const Preferences& preferences = simulation.world().preferences;
    SimulatedProgram& program = simulation.program();
    switch (pane) {
    case SettingsPane::timing:
        return timingPane(simulation);
    case SettingsPane::enforcement:
        return EnforcementPane::content(preferences);
    case SettingsPane::smartPause:
        return SmartPausePane::content(preferences, program.delegate().smartPause());
    case SettingsPane::pausing:
        return PausingPane::content(preferences);
    case SettingsPane::websiteStats:
        return websiteStatsPane(simulation);
    case SettingsPane::notifications:
        return NotificationsPane::content(program.engine(), preferences, program.historyData());
    case SettingsPane::appearance:
        return AppearancePane::content(preferences);
    case SettingsPane::about:
        return AboutPane::content();
    }
    return {};
}

struct ControlReader {
    Json operator()(const StepperState& stepper) const { return stepper.value; }
    Json operator()(const PillsState& pills) const {
        return pills.selected ? Json(pills.options.at(*pills.selected).label) : Json(nullptr);
    }
    Json operator()(const ToggleState& toggle) const { return toggle.isOn; }
    Json operator()(const CardState& card) const { return card.isSelected; }
    Json operator()(const ToldState& told) const { return told.word; }
};

Json objectOf(const PaneRow& row) {
    const auto* const stepper = std::get_if<StepperState>(&row.control);
    return {{"title", row.title},
            {"caption", jsonOf(row.caption)},
            {"value", std::visit(ControlReader(), row.control)},
            {"invalid", stepper != nullptr && stepper->isInvalid},
            {"enabled", row.isEnabled}};
}

Json paneReading(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("NAME");
    arguments.end();
    const auto pane = fromRawValue<SettingsPane>(name);
    if (!pane) {
        throw ScenarioError(quoted(name) + " is no pane");
    }
    const PaneContent content = contentOf(*pane, simulation);
    Json rows = Json::array();
    for (const PaneRow& row : content.rows()) {
        rows.push_back(objectOf(row));
    }
    return {{"title", content.title},
            {"sentence", content.sentence},
            {"rows", rows},
            {"notes", Json(content.notes())}};
}

Json listOf(const std::vector<AppListEditor::App>& apps) {
    Json list = Json::array();
    for (const AppListEditor::App& app : apps) {
        list.push_back(Json{{"bundleID", app.bundleID}, {"name", app.name}});
    }
    return list;
}

Json appListReading(Simulation& simulation, Arguments& arguments) {
    const std::string& word = arguments.take("KIND");
    arguments.end();
    const auto kind = fromRawValue<SmartPauseKind>(word);
    if (!kind) {
        throw ScenarioError(quoted(word) + " is no kind of smart pause");
    }
    simulation.program();
    const AppListEditor editor(simulation.world().ports(), *kind);
    const SmartPauseWords words = SmartPauseWords::of(*kind);
    return {{"title", words.title},
            {"sentence", words.sentence},
            {"ids", listOf(editor.ids())},
            {"running", listOf(editor.runningChoices())}};
}

constexpr std::array<NamedReader, 2> readers{{{"pane", paneReading, rawValueForms<SettingsPane>},
                                              {"app-list", appListReading, rawValueForms<SmartPauseKind>}}};

} // namespace

Readers settingsReaders() {
    return readers;
}

} // namespace kestrelfen
