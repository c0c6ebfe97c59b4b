#pragma once

#include "Arguments.hpp"

#include <array>
#include <string_view>

namespace kestrelfen {

class Simulation;

/// One command of the scenario language. Throws a ScenarioError where the words are not its own.
using Command = void (*)(Simulation&, Arguments&);

struct NamedCommand {
    std::string_view name;
    Command command;
};

/// Null where `commands` has none of that name.
template <std::size_t count>
constexpr Command commandNamed(const std::array<NamedCommand, count>& commands, std::string_view name) {
    for (const NamedCommand& known : commands) {
        if (known.name == name) {
            return known.command;
        }
    }
    return nullptr;
}

// Each answers null where it has no command of that name.
Command timeCommand(std::string_view name);
Command worldCommand(std::string_view name);
Command senseCommand(std::string_view name);
Command historyCommand(std::string_view name);
Command programCommand(std::string_view name);
Command pressCommand(std::string_view name);
Command popoverCommand(std::string_view name);
Command mainWindowCommand(std::string_view name);
Command settingsCommand(std::string_view name);
Command chooseCommand(std::string_view name);
Command onboardingCommand(std::string_view name);

/// `press popover`, with the words that follow.
void pressPopover(Simulation& simulation, Arguments& arguments);
/// `press dashboard`.
void pressDashboard(Simulation& simulation, Arguments& arguments);
/// `press onboarding`.
void pressOnboarding(Simulation& simulation, Arguments& arguments);

/// `choose usageSource` with that word.
void chooseUsageSource(Simulation& simulation, const std::string& word);

/// Says that a control is not there, or is disabled.
void notAvailable();

} // namespace kestrelfen
