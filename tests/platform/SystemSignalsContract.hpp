#pragma once

#include "platform/ports/SystemSignals.hpp"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <vector>

namespace kestrelfen {

/// What holds of everything that delivers system signals. A subject has `systemSignals()`, `happen(signal)`,
/// which brings about what the signal stands for and returns once it must have been told, and is made with
/// the machine awake, and the session in front and unlocked.
template <typename Subject>
class SystemSignalsContract : public testing::Test {
  protected:
    using Observation = std::unique_ptr<SystemSignals::Observation>;

    SystemSignals& systemSignals() { return subject_.systemSignals(); }
    void happen(SystemSignal signal) { subject_.happen(signal); }

  private:
    Subject subject_;
};

TYPED_TEST_SUITE_P(SystemSignalsContract);

TYPED_TEST_P(SystemSignalsContract, EachIsDeliveredOnceAChangeAndToItsOwnObserversAlone) {
    std::map<SystemSignal, int> calls;
    std::vector<typename TestFixture::Observation> observations;
    observations.reserve(EnumerationTable<SystemSignal>::rows.size());
    for (const auto& row : EnumerationTable<SystemSignal>::rows) {
        observations.push_back(
            this->systemSignals().observe(row.value, [&calls, signal = row.value] { ++calls[signal]; }));
    }
    for (const auto& row : EnumerationTable<SystemSignal>::rows) {
        this->happen(row.value);
        EXPECT_EQ(calls, (std::map<SystemSignal, int>{{row.value, 1}})) << row.rawValue;
        calls.clear();
    }
}

TYPED_TEST_P(SystemSignalsContract, EveryObserverIsTold) {
    int calls = 0;
    const auto first = this->systemSignals().observe(SystemSignal::screenIsLocked, [&calls] { ++calls; });
    const auto second = this->systemSignals().observe(SystemSignal::screenIsLocked, [&calls] { ++calls; });
    this->happen(SystemSignal::screenIsLocked);
    EXPECT_EQ(calls, 2);
}

TYPED_TEST_P(SystemSignalsContract, AnObservationThatHasEndedHearsNothing) {
    int calls = 0;
    auto ended = this->systemSignals().observe(SystemSignal::screenIsLocked, [&calls] { ++calls; });
    const auto other = this->systemSignals().observe(SystemSignal::screenIsLocked, [&calls] { calls += 10; });
    ended.reset();
    this->happen(SystemSignal::screenIsLocked);
    EXPECT_EQ(calls, 10);
}

TYPED_TEST_P(SystemSignalsContract, AnObserverMayEndItselfAndOthersWhileItIsTold) {
    int calls = 0;
    typename TestFixture::Observation first;
    typename TestFixture::Observation second;
    first = this->systemSignals().observe(SystemSignal::willSleep, [&] {
        ++calls;
        second.reset();
        first.reset();
    });
    second = this->systemSignals().observe(SystemSignal::willSleep, [&calls] { ++calls; });
    this->happen(SystemSignal::willSleep);
    EXPECT_EQ(calls, 1);
}

TYPED_TEST_P(SystemSignalsContract, AnObserverMayBeAddedWhileAnotherIsTold) {
    int calls = 0;
    typename TestFixture::Observation added;
    const auto first = this->systemSignals().observe(SystemSignal::willSleep, [&] {
        added = this->systemSignals().observe(SystemSignal::didWake, [&calls] { ++calls; });
    });
    this->happen(SystemSignal::willSleep);
    this->happen(SystemSignal::didWake);
    EXPECT_EQ(calls, 1);
}

TYPED_TEST_P(SystemSignalsContract, AMachineOnWhichAllCanHappenSaysSo) {
    EXPECT_EQ(this->systemSignals().capabilities(), (SystemSignals::Capabilities{true, true, true, true}));
}

REGISTER_TYPED_TEST_SUITE_P(SystemSignalsContract, EachIsDeliveredOnceAChangeAndToItsOwnObserversAlone,
                            EveryObserverIsTold, AnObservationThatHasEndedHearsNothing,
                            AnObserverMayEndItselfAndOthersWhileItIsTold,
                            AnObserverMayBeAddedWhileAnotherIsTold, AMachineOnWhichAllCanHappenSaysSo);

} // namespace kestrelfen
