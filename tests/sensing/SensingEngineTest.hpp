#pragma once

#include "sensing/ScreenLock.hpp"
#include "sensing/SystemEventMonitor.hpp"
#include "support/EngineHarness.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// A test of the engine with the real system event monitor and screen lock.
class SensingEngineTest : public testing::Test, public EngineHarness {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }
    void TearDown() override { EXPECT_EQ(happened(), "") << "not expected by the test"; }

    std::string state() { return stateText(engine().state()); }
    void send(SystemSignal signal) { platform.systemSignals.send(signal); }

    std::unique_ptr<SystemEvents> makeSystemEvents() override {
        return std::make_unique<SystemEventMonitor>(platform.systemSignals);
    }

    std::function<void()> makeLockScreen() override {
        return [this] { ScreenLock(platform.sessionLock, platform.log).lock(); };
    }
};

} // namespace kestrelfen
