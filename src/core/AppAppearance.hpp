#pragma once

#include "base/Translated.hpp"
#include "core/StoredEnumeration.hpp"

namespace kestrelfen {

/// Light, dark, or as the desktop has it.
enum class AppAppearance { system, light, dark };

template <>
struct EnumerationTable<AppAppearance> {
    static constexpr std::array<EnumerationRow<AppAppearance>, 3> rows{{
        {AppAppearance::system, "system", toTranslate("System")},
        {AppAppearance::light, "light", toTranslate("Light")},
        {AppAppearance::dark, "dark", toTranslate("Dark")},
    }};
};

template <>
struct StoredEnumeration<AppAppearance> {
    static constexpr std::string_view key = "appearance";
    static constexpr AppAppearance fallback = AppAppearance::system;
};

} // namespace kestrelfen
