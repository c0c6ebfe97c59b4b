#pragma once

#include "base/Translated.hpp"
#include "platform/ports/Platform.hpp"
#include "store/HistoryEntry.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// One line of the history's table.
struct BreakHistoryRow {
    std::string started;
    std::string type;
    /// The name of its colour.
    std::string_view typeTint;
    std::string duration;
    std::string task;
    /// Whether `task` only says that there is none.
    bool isWithoutTask = false;
    std::string display;

    static BreakHistoryRow of(const HistoryEntry& entry, const TimeFormat& timeFormat);

    /// The columns' texts, and what is read aloud of them.
    std::array<std::string, 5> columns() const;
    std::string sentence() const;

    friend bool operator==(const BreakHistoryRow&, const BreakHistoryRow&) = default;
};

/// The texts around the history's rows at one moment.
struct BreakHistoryContent {
    struct Column {
        std::string_view header;
        /// In points; 0 for the one that takes what is left.
        int width = 0;
    };

    static constexpr std::array<Column, 5> columns{{{toTranslate("Started"), 96},
                                                    {toTranslate("Type"), 116},
                                                    {toTranslate("Duration"), 96},
                                                    {toTranslate("Task credited"), 0},
                                                    {toTranslate("Display"), 90}}};
    static constexpr std::string_view footnote =
        toTranslate("Stored in SwiftData behind a versioned schema · pruning runs at most once a day");

    std::string summary;
    /// Stands where there are no rows.
    std::optional<std::string> emptyLine;

    static BreakHistoryContent of(std::size_t rowCount, bool hasLoaded, const Preferences& preferences);

    friend bool operator==(const BreakHistoryContent&, const BreakHistoryContent&) = default;
};

} // namespace kestrelfen
