#pragma once

#include "base/Translated.hpp"
#include "core/StoredEnumeration.hpp"

namespace kestrelfen {

/// When the skip of a running break becomes possible.
enum class EnforcementLevel { casual, balanced, hardcore };

template <>
struct EnumerationTable<EnforcementLevel> {
    static constexpr std::array<EnumerationRow<EnforcementLevel>, 3> rows{{
        {EnforcementLevel::casual, "casual", toTranslate("Casual"), toTranslate("Skip anytime")},
        {EnforcementLevel::balanced, "balanced", toTranslate("Balanced"), toTranslate("Skip after a pause")},
        {EnforcementLevel::hardcore, "hardcore", toTranslate("Hardcore"), toTranslate("No skips allowed")},
    }};
};

template <>
struct StoredEnumeration<EnforcementLevel> {
    static constexpr std::string_view key = "enforcementLevel";
    static constexpr EnforcementLevel fallback = EnforcementLevel::balanced;
};

/// Seconds of the break before a skip becomes possible; absent where it never does.
constexpr std::optional<double> skipDelay(EnforcementLevel level) {
    switch (level) {
    case EnforcementLevel::casual:
        return 0.0;
    case EnforcementLevel::balanced:
        return 5.0;
    case EnforcementLevel::hardcore:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace kestrelfen
