#pragma once

#include "Forms.hpp"

#include <array>
#include <span>
#include <string_view>

namespace kestrelfen {

class Simulation;

/// One command of the scenario language. Throws a ScenarioError where the words are not its own.
using Command = void (*)(Simulation&, Arguments&);

struct NamedCommand {
    std::string_view name;
    Command command;
    /// Null where only values follow.
    Forms forms = nullptr;
};

using Commands = std::span<const NamedCommand>;

Commands timeCommands();
Commands worldCommands();
Commands senseCommands();
Commands historyCommands();
Commands programCommands();
Commands pressCommands();
Commands popoverCommands();
Commands mainWindowCommands();
Commands settingsCommands();
Commands chooseCommands();
Commands onboardingCommands();

/// `press popover`, with the words that follow.
void pressPopover(Simulation& simulation, Arguments& arguments);
/// `press dashboard`.
void pressDashboard(Simulation& simulation, Arguments& arguments);
/// `press onboarding`.
void pressOnboarding(Simulation& simulation, Arguments& arguments);
FormList onboardingControlForms();

/// `choose usageSource` with that word.
void chooseUsageSource(Simulation& simulation, const std::string& word);

/// Says that a control is not there, or is disabled.
void notAvailable();

} // namespace kestrelfen
