#pragma once

#include "store/HistoryDatabase.hpp"

namespace kestrelfen {

/// The saves of a process that is killed while it writes: each is told by its number.
struct StoreWriter {
    /// How many kinds of saves take turns.
    static constexpr std::int64_t kinds = 6;

    static void save(HistoryDatabase& database, std::int64_t number);
};

} // namespace kestrelfen
