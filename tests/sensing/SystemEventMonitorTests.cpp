#include "platform/fake/FakeSystemSignals.hpp"
#include "sensing/SystemEventMonitor.hpp"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

namespace kestrelfen {
namespace {

/// Signals that also keep what was observed, in order.
class RecordingSignals final : public SystemSignals {
  public:
    std::unique_ptr<Observation> observe(SystemSignal signal, std::function<void()> deliver) override {
        observed.push_back(signal);
        return fake_.observe(signal, std::move(deliver));
    }
    Capabilities capabilities() const override { return fake_.capabilities(); }

    void send(SystemSignal signal) const { fake_.send(signal); }

    std::vector<SystemSignal> observed;

  private:
    FakeSystemSignals fake_;
};

class SystemEventMonitorTest : public testing::Test {
  protected:
    SystemEventMonitorTest() { listen(); }

    void listen() {
        monitor->onPause = [this](PauseReason reason) { add("pause", reason); };
        monitor->onResume = [this](PauseReason reason) { add("resume", reason); };
    }

    void add(std::string_view action, PauseReason reason) {
        calls += std::string(action) + "(" + std::string(rawValue(reason)) + ") ";
    }

    /// What the monitor makes of one signal.
    std::string callsOf(SystemSignal signal) {
        calls.clear();
        signals.send(signal);
        return calls;
    }

    RecordingSignals signals;
    std::unique_ptr<SystemEventMonitor> monitor = std::make_unique<SystemEventMonitor>(signals);
    std::string calls;
};

TEST_F(SystemEventMonitorTest, TranslatesEachSignal) {
    monitor->start();
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "pause(systemSleep) ");
    EXPECT_EQ(callsOf(SystemSignal::didWake), "resume(systemSleep) ");
    EXPECT_EQ(callsOf(SystemSignal::screensDidSleep), "pause(displaySleep) ");
    EXPECT_EQ(callsOf(SystemSignal::screensDidWake), "resume(displaySleep) ");
    EXPECT_EQ(callsOf(SystemSignal::sessionDidResignActive), "pause(screenLocked) ");
    EXPECT_EQ(callsOf(SystemSignal::sessionDidBecomeActive), "resume(screenLocked) ");
    EXPECT_EQ(callsOf(SystemSignal::screenIsLocked), "pause(screenLocked) ");
    EXPECT_EQ(callsOf(SystemSignal::screenIsUnlocked), "resume(screenLocked) ");
}

TEST_F(SystemEventMonitorTest, ObservesTheEightSignalsInOrder) {
    EXPECT_TRUE(signals.observed.empty());
    monitor->start();
    const auto all = allCases<SystemSignal>();
    EXPECT_EQ(signals.observed, (std::vector<SystemSignal>(all.begin(), all.end())));
}

TEST_F(SystemEventMonitorTest, ASecondStartObservesNothing) {
    monitor->start();
    monitor->start();
    EXPECT_EQ(signals.observed.size(), 8U);
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "pause(systemSleep) ");
}

TEST_F(SystemEventMonitorTest, StoppedFromTheStartItDeliversNothing) {
    for (const SystemSignal signal : allCases<SystemSignal>()) {
        EXPECT_EQ(callsOf(signal), "");
    }
}

TEST_F(SystemEventMonitorTest, ASignalAfterTheStopReachesNobody) {
    monitor->start();
    monitor->stop();
    for (const SystemSignal signal : allCases<SystemSignal>()) {
        EXPECT_EQ(callsOf(signal), "");
    }
}

TEST_F(SystemEventMonitorTest, MayStartAgainAfterAStopAndStopTwice) {
    monitor->start();
    monitor->stop();
    monitor->stop();
    monitor->start();
    EXPECT_EQ(callsOf(SystemSignal::didWake), "resume(systemSleep) ");
}

TEST_F(SystemEventMonitorTest, KeepsNoStateOfTheMachine) {
    monitor->start();
    EXPECT_EQ(callsOf(SystemSignal::didWake), "resume(systemSleep) ");
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "pause(systemSleep) ");
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "pause(systemSleep) ");
}

TEST_F(SystemEventMonitorTest, ACallbackThatIsNotSetIsSkipped) {
    monitor->onPause = nullptr;
    monitor->start();
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "");
    EXPECT_EQ(callsOf(SystemSignal::didWake), "resume(systemSleep) ");
    monitor->onResume = nullptr;
    EXPECT_EQ(callsOf(SystemSignal::didWake), "");
}

TEST_F(SystemEventMonitorTest, ACallbackSetAfterTheStartIsCalled) {
    monitor->onPause = nullptr;
    monitor->start();
    listen();
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "pause(systemSleep) ");
}

TEST_F(SystemEventMonitorTest, ASignalAfterTheMonitorsEndDoesNothing) {
    monitor->start();
    monitor.reset();
    EXPECT_EQ(callsOf(SystemSignal::willSleep), "");
}

TEST_F(SystemEventMonitorTest, MayBeStoppedFromWithinACallback) {
    monitor->onPause = [this](PauseReason reason) {
        add("pause", reason);
        monitor->stop();
    };
    monitor->start();
    EXPECT_EQ(callsOf(SystemSignal::screenIsLocked), "pause(screenLocked) ");
    EXPECT_EQ(callsOf(SystemSignal::screenIsLocked), "");
}

} // namespace
} // namespace kestrelfen
