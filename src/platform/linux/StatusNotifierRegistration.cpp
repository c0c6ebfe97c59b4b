#include "platform/linux/StatusNotifierRegistration.hpp"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <utility>

namespace kestrelfen {

namespace {

constexpr char watcherName[] = "org.kde.StatusNotifierWatcher";
constexpr char watcherPath[] = "/StatusNotifierWatcher";

QDBusMessage question(const char* interface, const char* method) {
    auto message = QDBusMessage::createMethodCall(watcherName, watcherPath, interface, method);
    message.setAutoStartService(false);
    return message;
}

} // namespace

StatusNotifierRegistration::StatusNotifierRegistration(const QDBusConnection& sessionBus,
                                                       std::function<void()> changed)
    : bus_(sessionBus), changed_(std::move(changed)) {}

void StatusNotifierRegistration::start() {
    followWatcher();
    registerItem();
}

/// Without a sender's name: with one, Qt would wait for the bus to tell who owns it.
void StatusNotifierRegistration::followWatcher() {
    bus_.connect(QString(), "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameOwnerChanged",
                 {watcherName}, "sss", this, SLOT(watcherOwnerChanged(QString, QString, QString)));
    for (const char* const signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(QString(), watcherPath, watcherName, signal, this, SLOT(askForHost()));
    }
}

void StatusNotifierRegistration::watcherOwnerChanged(const QString& /*name*/, const QString& /*oldOwner*/,
                                                     const QString& newOwner) {
    ++watcherNumber_;
    set(false, false);
    if (!newOwner.isEmpty()) {
        registerItem();
    }
}

void StatusNotifierRegistration::registerItem() {
    auto message = question(watcherName, "RegisterStatusNotifierItem");
    message << bus_.baseService();
    whenAnswered(message, [this](const QDBusMessage& /*answer*/) {
        set(true, hasHost_);
        askForHost();
    });
}

void StatusNotifierRegistration::askForHost() {
    auto message = question("org.freedesktop.DBus.Properties", "Get");
    message << QString(watcherName) << QString("IsStatusNotifierHostRegistered");
    whenAnswered(message, [this](const QDBusMessage& answer) {
        const auto value = answer.arguments().value(0).value<QDBusVariant>().variant();
        set(isRegistered_, value.toBool());
    });
}

void StatusNotifierRegistration::set(bool isRegistered, bool hasHost) {
    const bool wasAccepted = isAccepted();
    isRegistered_ = isRegistered;
    hasHost_ = hasHost;
    if (isAccepted() != wasAccepted) {
        changed_();
    }
}

void StatusNotifierRegistration::whenAnswered(const QDBusMessage& question,
                                              std::function<void(const QDBusMessage&)> take) {
    auto* const call = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this,
            [this, call, take = std::move(take), number = watcherNumber_] {
                call->deleteLater();
                if (!call->isError() && number == watcherNumber_) {
                    take(call->reply());
                }
            });
}

} // namespace kestrelfen
