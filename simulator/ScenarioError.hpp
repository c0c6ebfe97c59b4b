#pragma once

#include <stdexcept>
#include <string>

namespace kestrelfen {

/// What is wrong with a line of a scenario, without its place.
class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace kestrelfen
