#pragma once

#include "support/EngineHarness.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// A test of the engine on its harness. The trace must be empty at the end: an event that no expectation took
/// is a failure.
class EngineTest : public testing::Test, public EngineHarness {
  protected:
    void TearDown() override { EXPECT_EQ(happened(), "") << "not expected by the test"; }

    std::string state() { return stateText(engine().state()); }

    /// Starts, and goes on to the first break at 08:20:00.
    void startBreak() {
        start();
        tickAt("08:20:00");
        forget();
    }
};

} // namespace kestrelfen
