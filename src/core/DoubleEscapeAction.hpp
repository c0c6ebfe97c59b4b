#pragma once

#include "base/Translated.hpp"
#include "core/StoredEnumeration.hpp"

namespace kestrelfen {

/// What two presses of Escape do on the break screen.
enum class DoubleEscapeAction { nothing, snooze, skip };

template <>
struct EnumerationTable<DoubleEscapeAction> {
    static constexpr std::array<EnumerationRow<DoubleEscapeAction>, 3> rows{{
        {DoubleEscapeAction::nothing, "nothing", toTranslate("Nothing")},
        {DoubleEscapeAction::snooze, "snooze", toTranslate("Snooze the break")},
        {DoubleEscapeAction::skip, "skip", toTranslate("Skip the break")},
    }};
};

template <>
struct StoredEnumeration<DoubleEscapeAction> {
    static constexpr std::string_view key = "doubleEscapeAction";
    static constexpr DoubleEscapeAction fallback = DoubleEscapeAction::nothing;
};

} // namespace kestrelfen
