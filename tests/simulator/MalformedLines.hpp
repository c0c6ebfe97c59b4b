#pragma once

#include "SimulatorRun.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrelfen {

/// A line that is malformed, and what is said of it.
struct MalformedRow {
    const char* line;
    const char* error;
};

inline std::string quotedRow(const MalformedRow& row) {
    return std::string("the line '") + row.line + "'";
}

/// After `before`, each line alone must be malformed and change nothing that is printed.
template <std::size_t count>
void expectMalformed(std::string_view before, const MalformedRow (&rows)[count]) {
    const auto number = std::count(before.begin(), before.end(), '\n') + 1;
    for (const MalformedRow& row : rows) {
        const SimulatorRun run = simulate(std::string(before) + row.line + "\nshow prefs\n");
        EXPECT_EQ(run.status, 2) << quotedRow(row);
        EXPECT_EQ(run.output, "") << quotedRow(row);
        EXPECT_EQ(run.errors, "-:" + std::to_string(number) + ": " + row.error + "\n") << quotedRow(row);
    }
}

} // namespace kestrelfen
