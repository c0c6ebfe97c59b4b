#include "platform/linux/SystemSignalsTest.hpp"

#include <utility>

namespace kestrelfen {

Hearing::Hearing(SystemSignals& systemSignals) {
    for (const auto& row : EnumerationTable<SystemSignal>::rows) {
        const std::string name(row.rawValue);
        observations_.push_back(
            systemSignals.observe(row.value, [this, name] { heard_ += heard_.empty() ? name : " " + name; }));
    }
}

std::string Hearing::next() {
    waitUntil([this] { return !heard_.empty(); });
    pass(std::chrono::milliseconds(50));
    return take();
}

std::string Hearing::nextAfterQuiet() {
    pass(quiet);
    return take();
}

std::string Hearing::take() {
    return std::exchange(heard_, {});
}

void SystemSignalsTest::listen(const Capabilities& expected) {
    systemBus_ = std::make_unique<BusLink>(BusLink::Bus::system);
    sessionBus_ = std::make_unique<BusLink>(BusLink::Bus::session);
    signals_ = std::make_unique<LinuxSystemSignals>(*systemBus_, *sessionBus_);
    hearing_ = std::make_unique<Hearing>(*signals_);
    EXPECT_TRUE(waitFor(expected));
}

void SystemSignalsTest::listenAndSettle(const Capabilities& expected) {
    listen(expected);
    EXPECT_EQ(nextAfterQuiet(), "");
}

bool SystemSignalsTest::waitFor(const Capabilities& expected) const {
    return waitUntil([&] { return signals_->capabilities() == expected; });
}

} // namespace kestrelfen
