#include "platform/linux/BusProperties.hpp"

#include <QDBusArgument>

#include <utility>

namespace kestrelfen {

namespace {

constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";
constexpr char changedSignature[] = "sa{sv}as";
constexpr char allSignature[] = "a{sv}";

QVariantMap mapIn(const QDBusMessage& message, int place) {
    return qdbus_cast<QVariantMap>(message.arguments().at(place));
}

} // namespace

BusProperties::BusProperties(BusService& service, QString interface, Take take)
    : service_(service), interface_(std::move(interface)), take_(std::move(take)) {}

void BusProperties::look(const QString& path) {
    if (path != path_) {
        leave();
        path_ = path;
        service_.follow(changes());
    }
    ask(Occasion::look);
}

void BusProperties::leave() {
    if (!path_.isEmpty()) {
        service_.unfollow(changes());
        path_.clear();
    }
}

BusService::Signal BusProperties::changes() const {
    return {path_, propertiesInterface, "PropertiesChanged", interface_};
}

void BusProperties::ask(Occasion occasion) {
    service_.ask({path_, propertiesInterface, "GetAll"}, {interface_},
                 [this, occasion, path = path_](const QDBusMessage& answer) {
                     if (path == path_ && answer.signature() == allSignature) {
                         take_(mapIn(answer, 0), occasion);
                     }
                 });
}

void BusProperties::hear(const QDBusMessage& signal) {
    const bool isMeant = signal.member() == "PropertiesChanged" && signal.path() == path_ &&
                         signal.signature() == changedSignature &&
                         signal.arguments().at(0).toString() == interface_;
    if (!isMeant) {
        return;
    }
    take_(mapIn(signal, 1), Occasion::change);
    const bool hasMoreToTell = !signal.arguments().at(2).toStringList().isEmpty();
    if (hasMoreToTell) {
        ask(Occasion::change);
    }
}

} // namespace kestrelfen
