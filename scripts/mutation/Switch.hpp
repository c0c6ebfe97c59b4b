#pragma once

#include <type_traits>

namespace mutation {

/// Whether this mutant is the one to be run. Notes that it was reached.
bool isChosen(int number);

/// What the compiler evaluates stays as it was.
constexpr bool on(int number) {
    return !std::is_constant_evaluated() && isChosen(number);
}

} // namespace mutation
