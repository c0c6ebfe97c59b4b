#pragma once

#include "core/SnoozeOption.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class BreakEngine;
class Preferences;

/// One item of the overlay's row of ways out.
struct BreakOverlayControl {
    enum class Kind { snooze, endBreak, skip, skipWait };

    Kind kind = Kind::snooze;
    std::string text;
    /// What a screen reader says.
    std::string spokenLabel;
    /// Only for `snooze`.
    std::optional<SnoozeOption> snooze = {};

    friend bool operator==(const BreakOverlayControl&, const BreakOverlayControl&) = default;
};

/// Every text, number and flag of the break overlay at one moment. What this kind of break lacks is absent.
struct BreakOverlayContent {
    bool isLong = false;
    std::optional<std::string> eyebrow;
    std::string title;
    std::string body;
    /// Share of the break that is left; may lie outside 0 to 1 where the clock was set back.
    double ringRemaining = 0;
    std::string ringLabel;
    std::vector<BreakOverlayControl> controls;
    std::optional<std::string> coverageNote;
    std::optional<std::int64_t> cadenceDots;
    std::optional<std::string> cadenceText;
    std::optional<bool> cadenceSkip;
    std::string cadenceSkipText;

    /// `displayCount` is the number of displays connected now.
    static BreakOverlayContent of(const BreakEngine& engine, const Preferences& preferences,
                                  std::int64_t displayCount);

    friend bool operator==(const BreakOverlayContent&, const BreakOverlayContent&) = default;
};

} // namespace kestrelfen
