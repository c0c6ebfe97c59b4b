#pragma once

#include "Arguments.hpp"

#include <string_view>

namespace kestrelfen {

class Simulation;

/// One command of the scenario language. Throws a ScenarioError where the words are not its own.
using Command = void (*)(Simulation&, Arguments&);

// Each answers null where it has no command of that name.
Command timeCommand(std::string_view name);
Command worldCommand(std::string_view name);
Command programCommand(std::string_view name);
Command pressCommand(std::string_view name);

/// Says that a control is not there, or is disabled.
void notAvailable();

} // namespace kestrelfen
