#pragma once

#include <array>
#include <cstdint>

namespace kestrelfen {

/// The layout of the store's file. No attribute has an index or must be unique; the relationships have an
/// index, because a cascade follows them.
struct Schema {
    /// Marks the file as ours: "KSFN".
    static constexpr std::int64_t applicationID = 0x4B53464E;

    /// 4.0.0: ten thousand for each step of the first number, a hundred for each of the second.
    static constexpr std::int64_t version = 4'00'00;

    /// What makes the tables in an empty file.
    static const std::array<const char*, 10> statements;

    /// What can be prepared only where each table has all its columns.
    static const std::array<const char*, 6> layoutProbes;
};

} // namespace kestrelfen
