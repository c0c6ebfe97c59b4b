#pragma once

#include "base/Enumeration.hpp"

namespace kestrelfen {

/// How a recorded break ended.
enum class BreakOutcome { completed, skipped };

template <>
struct EnumerationTable<BreakOutcome> {
    static constexpr std::array<EnumerationRow<BreakOutcome>, 2> rows{{
        {BreakOutcome::completed, "completed"},
        {BreakOutcome::skipped, "skipped"},
    }};
};

} // namespace kestrelfen
