#pragma once

#include "base/Date.hpp"
#include "base/PauseKind.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// One break or pause of the history. `seconds` is absent for a skipped break, `taskTitle` for a pause.
struct HistoryEntry {
    struct Kind {
        enum class Case { completed, paused, skipped };

        Case kind = Case::completed;
        /// Of a completed break.
        bool isLong = false;
        /// Of a pause.
        PauseKind reason = PauseKind::manual;

        static Kind completed(bool isLong) { return {Case::completed, isLong, PauseKind::manual}; }
        static Kind paused(PauseKind reason) { return {Case::paused, false, reason}; }
        static Kind skipped() { return {Case::skipped, false, PauseKind::manual}; }

        friend bool operator==(const Kind&, const Kind&) = default;
    };

    std::string id;
    Date startedAt;
    Kind kind;
    std::optional<double> seconds;
    std::optional<std::string> taskTitle;
    std::int64_t displayCount = 0;

    friend bool operator==(const HistoryEntry&, const HistoryEntry&) = default;
};

/// "Long break", "Paused · idle".
std::string_view label(const HistoryEntry::Kind& kind);

} // namespace kestrelfen
