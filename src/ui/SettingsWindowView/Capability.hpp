#pragma once

#include <string>

namespace kestrelfen {

/// One thing that the program takes from the desktop, and what it does as far as that is missing.
struct Capability {
    enum class State { works, limited, missing };

    /// Tells it from the others.
    std::string key;
    std::string name;
    State state = State::works;
    /// Empty where it works.
    std::string fallback = {};

    friend bool operator==(const Capability&, const Capability&) = default;
};

} // namespace kestrelfen
