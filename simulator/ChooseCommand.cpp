#include "Commands.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"

#include <utility>

namespace kestrelfen {

namespace {

void chooseLaunchAtLogin(Simulation& simulation, const std::string& word) {
    const bool on = booleanOf(word);
    SimulatedProgram& program = simulation.program();
    const bool isAsked =
        program.delegate().needsOnboarding() && program.onboarding().page() == OnboardingPage::cadence;
    LaunchAtLogin& launchAtLogin = isAsked ? program.onboarding().launchAtLogin() : program.launchAtLogin();
    launchAtLogin.reload();
    launchAtLogin.set(on);
}

void chooseSetting(Simulation& simulation, const std::string& key, const std::string& word) {
    const SettingChoice* const choice = SettingChoice::find(key);
    if (!choice) {
        throw ScenarioError(quoted(key) + " has nothing to choose");
    }
    const SettingChoice::Option* const option = choice->option(word);
    if (!option) {
        throw ScenarioError(quoted(word) + " is not offered");
    }
    simulation.program();
    SettingsControls(simulation.world().preferences).choose(*choice, *option);
}

/// Chooses by a word that may turn out not to be offered.
using Chooser = void (*)(Simulation&, const std::string& word);

/// What is chosen elsewhere than among the preferences.
constexpr std::array<std::pair<std::string_view, Chooser>, 2> choosers{
    {{LaunchAtLogin::key, chooseLaunchAtLogin}, {"usageSource", chooseUsageSource}}};

void choose(Simulation& simulation, Arguments& arguments) {
    const std::string key = arguments.take("KEY");
    const std::string word = arguments.take("VALUE");
    arguments.end();
    for (const auto& [name, chooser] : choosers) {
        if (name == key) {
            chooser(simulation, word);
            return;
        }
    }
    chooseSetting(simulation, key, word);
}

FormList chooseForms() {
    return joined({firstWordForms(choosers), formsOf(SettingChoice::keys())});
}

constexpr std::array<NamedCommand, 1> commands{{{"choose", choose, chooseForms}}};

} // namespace

Commands chooseCommands() {
    return commands;
}

} // namespace kestrelfen
