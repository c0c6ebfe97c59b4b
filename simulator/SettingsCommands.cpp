#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/AppListEditor/AppListEditor.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"
#include "ui/SettingsWindowView/WebsiteStats.hpp"

namespace kestrelfen {

namespace {

constexpr std::array<std::string_view, 2> directions{"up", "down"};
constexpr std::array<std::string_view, 3> listActions{"add", "remove", "restore"};

void step(Simulation& simulation, Arguments& arguments) {
    const std::string key = arguments.take("KEY");
    const Stepper* const stepper = Stepper::find(key);
    if (!stepper) {
        throw ScenarioError(quoted(key) + " has no stepper");
    }
    const std::string_view word = takeOneOf(directions, arguments);
    arguments.end();
    simulation.program();
    SettingsControls controls(simulation.world().preferences);
    if (!controls.step(*stepper, word == "up" ? StepDirection::up : StepDirection::down)) {
        notAvailable();
    }
}

SmartPauseKind kindOf(const std::string& word) {
    if (const auto kind = fromRawValue<SmartPauseKind>(word)) {
        return *kind;
    }
    throw ScenarioError(quoted(word) + " is no kind of smart pause");
}

void addOrRemove(AppListEditor& editor, std::string_view action, const std::string& bundleID) {
    if (action == "add" && editor.offers(bundleID)) {
        editor.add(bundleID);
    } else if (action == "remove" && editor.lists(bundleID)) {
        editor.remove(bundleID);
    } else {
        notAvailable();
    }
}

void apps(Simulation& simulation, Arguments& arguments) {
    const SmartPauseKind kind = kindOf(arguments.take("KIND"));
    const std::string_view action = takeOneOf(listActions, arguments);
    const bool restores = action == "restore";
    const std::string bundleID = restores ? std::string() : arguments.take("BUNDLE");
    arguments.end();
    simulation.program();
    AppListEditor editor(simulation.world().ports(), kind);
    if (restores) {
        editor.restoreDefaults();
    } else {
        addOrRemove(editor, action, bundleID);
    }
}

void website(Simulation& simulation, Arguments& arguments) {
    const std::string& kind = arguments.take("KIND");
    const auto browser = fromRawValue<Browser>(kind);
    if (!browser) {
        throw ScenarioError(quoted(kind) + " is no browser");
    }
    const bool on = booleanOf(arguments.take("BOOL"));
    arguments.end();
    WebsiteStats stats(simulation.world().ports(), simulation.program().delegate().browserScripting());
    if (!isInstalled(*browser, simulation.world().applications)) {
        notAvailable();
        return;
    }
    stats.reload();
    stats.turn(*browser, on);
    simulation.settle();
}

FormList stepForms() {
    return joined({formsOf(Stepper::keys()), formsBehind("*", formsOf(directions))});
}

FormList appsForms() {
    return joined({rawValueForms<SmartPauseKind>(), formsBehind("*", formsOf(listActions))});
}

constexpr std::array<NamedCommand, 3> commands{
    {{"step", step, stepForms}, {"apps", apps, appsForms}, {"website", website, rawValueForms<Browser>}}};

} // namespace

Commands settingsCommands() {
    return commands;
}

} // namespace kestrelfen
