#include "platform/linux/SessionEnd.hpp"

#include "platform/linux/Login1.hpp"

#include <utility>

namespace kestrelfen {

SessionEnd::SessionEnd(BusLink& systemBus, std::function<void(Done)> ending)
    : ending_(std::move(ending)), service_(systemBus, login1::name,
                                           {[this] { takeInhibitor(); }, [this] { inhibitor_ = {}; },
                                            [this](const QDBusMessage& signal) { hear(signal); }}) {
    service_.follow(login1::managerSignal("PrepareForShutdown"));
}

void SessionEnd::takeInhibitor() {
    inhibitor_ = {};
    service_.ask(login1::managerMethod("Inhibit"),
                 {"shutdown", "Kestrelfen", "Saves what has been recorded", "delay"},
                 [this](const QDBusMessage& answer) {
                     inhibitor_ = answer.arguments().value(0).value<QDBusUnixFileDescriptor>();
                 });
}

void SessionEnd::hear(const QDBusMessage& signal) {
    if (signal.signature() != "b") {
        return;
    }
    const bool isComing = signal.arguments().at(0).toBool();
    if (isComing) {
        ending_(lifeline_.guard([this] { inhibitor_ = {}; }));
    } else {
        takeInhibitor();
    }
}

} // namespace kestrelfen
