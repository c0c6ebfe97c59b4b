#pragma once

#include "core/SnoozeOption.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class BreakEngine;

/// One button of the warning card.
struct PreBreakWarningControl {
    enum class Kind { dismiss, snooze, startNow };

    Kind kind = Kind::dismiss;
    std::string text;
    /// What a screen reader says; the tooltip of a snooze.
    std::string spokenLabel;
    /// Only for `snooze`.
    std::optional<SnoozeOption> snooze = {};

    friend bool operator==(const PreBreakWarningControl&, const PreBreakWarningControl&) = default;
};

/// Every text and number of the warning card at one moment.
struct PreBreakWarningContent {
    std::string title;
    std::string caption;
    /// Whole seconds to the break.
    std::int64_t counter = 0;
    /// How far the warning has run, 0 to 1.
    double fraction = 0;
    std::vector<PreBreakWarningControl> controls;
    std::optional<std::string> hint;

    static PreBreakWarningContent of(const BreakEngine& engine);

    friend bool operator==(const PreBreakWarningContent&, const PreBreakWarningContent&) = default;
};

} // namespace kestrelfen
