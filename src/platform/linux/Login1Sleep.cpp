#include "platform/linux/Login1Sleep.hpp"

#include "platform/linux/Login1.hpp"

#include <QDBusVariant>

namespace kestrelfen {

Login1Sleep::Login1Sleep(BusLink& systemBus, MergedFact::Source& isAsleep)
    : isAsleep_(isAsleep), service_(systemBus, login1::name,
                                    {[this] { look(); }, [this] { isAsleep_.fallSilent(); },
                                     [this](const QDBusMessage& signal) { hear(signal); }}) {
    service_.follow(login1::managerSignal("PrepareForSleep"));
}

void Login1Sleep::look() {
    isAsleep_.fallSilent();
    service_.ask({login1::path, "org.freedesktop.DBus.Properties", "Get"},
                 {login1::managerInterface, "PreparingForSleep"}, [this](const QDBusMessage& answer) {
                     const auto value = answer.arguments().value(0).value<QDBusVariant>().variant();
                     if (value.userType() == QMetaType::Bool) {
                         isAsleep_.look(value.toBool(), service_.isFirstLook());
                     }
                 });
}

void Login1Sleep::hear(const QDBusMessage& signal) {
    if (signal.signature() == "b") {
        isAsleep_.change(signal.arguments().at(0).toBool());
    }
}

} // namespace kestrelfen
