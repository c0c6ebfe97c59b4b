#pragma once

#include "Forms.hpp"
#include "Json.hpp"

#include <array>
#include <initializer_list>
#include <span>
#include <string_view>

namespace kestrelfen {

class Simulation;

/// Makes one reading, without its name, of the words that belong to it. Throws a ScenarioError.
using Reader = Json (*)(Simulation&, Arguments&);

struct NamedReader {
    std::string_view name;
    Reader reader;
    /// Null where only values follow.
    Forms forms = nullptr;
};

using Readers = std::span<const NamedReader>;

Readers viewReaders();
Readers senseReaders();
Readers historyReaders();
Readers popoverReaders();
Readers mainWindowReaders();
Readers settingsReaders();
Readers onboardingReaders();

/// A view that is not up: every key is there, and null.
Json absentView(std::initializer_list<const char*> keys);

} // namespace kestrelfen
