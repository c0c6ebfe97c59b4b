#include "platform/linux/StartableService.hpp"

namespace kestrelfen {

namespace {

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";

} // namespace

StartableService::StartableService(BusLink& bus, const QString& name)
    : bus_(bus), service_(bus, name, {}), subscription_(bus.observe([this] { look(); })) {
    look();
}

void StartableService::look() {
    isStartable_ = false;
    if (!bus_.isConnected()) {
        return;
    }
    bus_.ask(QDBusMessage::createMethodCall(busName, busPath, busName, "ListActivatableNames"), this,
             [this](const QDBusMessage& answer) {
                 isStartable_ = answer.arguments().value(0).toStringList().contains(service_.name());
             });
}

} // namespace kestrelfen
