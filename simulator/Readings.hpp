#pragma once

#include "Forms.hpp"
#include "Json.hpp"

namespace kestrelfen {

class Simulation;

/// What `show` prints of the reading `what`, with the words that belong to it. Throws a ScenarioError.
Json reading(Simulation& simulation, const std::string& what, Arguments& arguments);

/// Of all readings that there are.
FormList readingForms();

} // namespace kestrelfen
