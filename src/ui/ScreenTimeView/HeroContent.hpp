#pragma once

#include "platform/ports/Platform.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestrelfen {

class BreakEngine;

/// Every text, number and flag of the dashboard's first card at one moment.
struct HeroContent {
    struct Button {
        std::string label;
        bool enabled = true;

        friend bool operator==(const Button&, const Button&) = default;
    };

    struct Stat {
        std::string value;
        std::string label;
        /// The name of its colour.
        std::string_view tint = "ink";

        friend bool operator==(const Stat&, const Stat&) = default;
    };

    /// Of the day, in seconds where they are lengths.
    struct Facts {
        double longestStretch = 0;
        double activeSeconds = 0;
        double pausedSeconds = 0;
        std::int64_t streak = 0;
    };

    /// Share of the phase that is left, 0 to 1.
    double ringRemaining = 1;
    std::string ringLabel;
    std::string ringCaption;
    std::string headline;
    std::string subhead;
    /// Break, postpone, pause or resume.
    std::array<Button, 3> buttons;
    /// Current stretch, longest today, screen time, paused away, streak.
    std::array<Stat, 5> stats;

    static HeroContent of(const BreakEngine& engine, const TimeFormat& timeFormat, const Facts& facts);

    friend bool operator==(const HeroContent&, const HeroContent&) = default;
};

} // namespace kestrelfen
