#include "platform/SystemSignalsContract.hpp"
#include "platform/fake/FakeSystemSignals.hpp"

namespace kestrelfen {
namespace {

class FakeSubject {
  public:
    SystemSignals& systemSignals() { return systemSignals_; }
    void happen(SystemSignal signal) const { systemSignals_.send(signal); }

  private:
    FakeSystemSignals systemSignals_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, SystemSignalsContract, FakeSubject);

TEST(FakeSystemSignalsTest, TellsTheCapabilitiesThatItWasGiven) {
    FakeSystemSignals signals;
    signals.setCapabilities({.lock = true});
    EXPECT_EQ(signals.capabilities(), (SystemSignals::Capabilities{false, true, false, false}));
}

} // namespace
} // namespace kestrelfen
