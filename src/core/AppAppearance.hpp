#pragma once

#include "core/StoredEnumeration.hpp"

namespace kestrelfen {

/// Light, dark, or as the desktop has it.
enum class AppAppearance { system, light, dark };

template <>
struct EnumerationTable<AppAppearance> {
    static constexpr std::array<EnumerationRow<AppAppearance>, 3> rows{{
        {AppAppearance::system, "system", "System"},
        {AppAppearance::light, "light", "Light"},
        {AppAppearance::dark, "dark", "Dark"},
    }};
};

template <>
struct StoredEnumeration<AppAppearance> {
    static constexpr std::string_view key = "appearance";
    static constexpr AppAppearance fallback = AppAppearance::system;
};

} // namespace kestrelfen
