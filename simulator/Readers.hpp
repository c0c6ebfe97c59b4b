#pragma once

#include "Arguments.hpp"
#include "Json.hpp"

#include <array>
#include <initializer_list>
#include <string_view>

namespace kestrelfen {

class Simulation;

/// Makes one reading, without its name, of the words that belong to it. Throws a ScenarioError.
using Reader = Json (*)(Simulation&, Arguments&);

struct NamedReader {
    std::string_view name;
    Reader reader;
};

/// Null where `readers` has none of that name.
template <std::size_t count>
constexpr Reader readerNamed(const std::array<NamedReader, count>& readers, std::string_view name) {
    for (const NamedReader& known : readers) {
        if (known.name == name) {
            return known.reader;
        }
    }
    return nullptr;
}

// Each answers null where it has no reader of that name.
Reader viewReader(std::string_view name);
Reader senseReader(std::string_view name);
Reader historyReader(std::string_view name);
Reader popoverReader(std::string_view name);
Reader mainWindowReader(std::string_view name);
Reader settingsReader(std::string_view name);
Reader onboardingReader(std::string_view name);

/// A view that is not up: every key is there, and null.
Json absentView(std::initializer_list<const char*> keys);

} // namespace kestrelfen
