#pragma once

#include "core/StoredEnumeration.hpp"

namespace kestrelfen {

/// What two presses of Escape do on the break screen.
enum class DoubleEscapeAction { nothing, snooze, skip };

template <>
struct EnumerationTable<DoubleEscapeAction> {
    static constexpr std::array<EnumerationRow<DoubleEscapeAction>, 3> rows{{
        {DoubleEscapeAction::nothing, "nothing", "Nothing"},
        {DoubleEscapeAction::snooze, "snooze", "Snooze the break"},
        {DoubleEscapeAction::skip, "skip", "Skip the break"},
    }};
};

template <>
struct StoredEnumeration<DoubleEscapeAction> {
    static constexpr std::string_view key = "doubleEscapeAction";
    static constexpr DoubleEscapeAction fallback = DoubleEscapeAction::nothing;
};

} // namespace kestrelfen
