#pragma once

#include "base/Translated.hpp"
#include "store/TaskSummary.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

class BreakEngine;

/// Every text, number and flag of the popover at one moment.
struct MenuBarContent {
    struct Button {
        std::string label;
        bool enabled = true;

        friend bool operator==(const Button&, const Button&) = default;
    };

    std::string eyebrow;
    std::string value;
    std::string caption;
    std::string cycleText;
    /// Share of the phase that is left; may lie outside 0 to 1.
    double ringRemaining = 0;
    std::string ringLabel;
    /// Pause or resume, snooze or skip, break.
    std::array<Button, 3> buttons;

    static constexpr std::string_view todayEyebrow = toTranslate("Today");
    static constexpr std::string_view breaksTitle = toTranslate("Breaks completed");
    static constexpr std::string_view screenTimeTitle = toTranslate("Screen time");
    static constexpr std::string_view skippedTitle = toTranslate("Skipped");
    /// Completed breaks of all that were due.
    std::string breaks;
    /// The same as a share; 0 while none was due.
    double completionRate = 0;
    std::string screenTime;
    std::int64_t skipped = 0;

    struct ActiveTaskRow {
        std::string title;
        std::int64_t credits = 0;
        std::string creditsText;

        friend bool operator==(const ActiveTaskRow&, const ActiveTaskRow&) = default;
    };

    static constexpr std::string_view activeTaskCaption = toTranslate("Active task · credited each interval");
    std::optional<ActiveTaskRow> activeTask;

    /// `activeSeconds` are those of the day.
    static MenuBarContent of(const BreakEngine& engine, double activeSeconds,
                             const std::optional<TaskSummary>& activeTask);

    friend bool operator==(const MenuBarContent&, const MenuBarContent&) = default;
};

} // namespace kestrelfen
