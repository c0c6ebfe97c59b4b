#include "platform/linux/BusLink.hpp"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QPointer>

#include <utility>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

constexpr auto firstRetryDelay = 1s;
constexpr auto longestRetryDelay = 60s;

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";
constexpr char localPath[] = "/org/freedesktop/DBus/Local";
constexpr char localInterface[] = "org.freedesktop.DBus.Local";

QString addressOf(BusLink::Bus bus) {
    const bool isSystem = bus == BusLink::Bus::system;
    QString told = qEnvironmentVariable(isSystem ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    if (!told.isEmpty()) {
        return told;
    }
    return isSystem ? QStringLiteral("unix:path=/run/dbus/system_bus_socket")
                    : "unix:path=" + qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus";
}

QString unusedName() {
    static int count = 0;
    return "kestrelfen link " + QString::number(++count);
}

QDBusMessage busCall(const char* method) {
    return QDBusMessage::createMethodCall(busName, busPath, busName, method);
}

QString clause(const char* key, const QString& value) {
    return value.isEmpty() ? QString() : QStringLiteral(",%1='%2'").arg(key, value);
}

QString matchRule(const BusLink::Signal& signal) {
    return "type='signal'" + clause("sender", signal.sender) + clause("path", signal.path) +
           clause("interface", signal.interface) + clause("member", signal.member) +
           clause("arg0", signal.firstArgument);
}

QStringList firstArguments(const BusLink::Signal& signal) {
    return signal.firstArgument.isEmpty() ? QStringList() : QStringList{signal.firstArgument};
}

} // namespace

BusLink::BusLink(Bus bus) : BusLink(addressOf(bus)) {}

BusLink::BusLink(QString address)
    : address_(std::move(address)), name_(unusedName()), retryDelay_(firstRetryDelay) {
    retry_.setSingleShot(true);
    retry_.setTimerType(Qt::VeryCoarseTimer);
    connect(&retry_, &QTimer::timeout, this, [this] { open(); });
    open();
}

BusLink::~BusLink() {
    close();
}

/// As if the bus were a plain peer: Qt's own way of joining a bus waits for the bus's answer.
void BusLink::open() {
    isOpen_ = true;
    ++connectionNumber_;
    QDBusConnection peer = QDBusConnection::connectToPeer(address_, name_);
    peer.connect(QString(), localPath, localInterface, "Disconnected", this, SLOT(lose()));
    if (peer.isConnected()) {
        greet();
    } else {
        close();
        retryLater();
    }
}

void BusLink::greet() {
    ask(busCall("Hello"), this, [this](const QDBusMessage& answer) {
        if (answer.type() != QDBusMessage::ReplyMessage) {
            lose();
            return;
        }
        isConnected_ = true;
        wasConnected_ = true;
        retryDelay_ = firstRetryDelay;
        observers_.notify();
    });
}

void BusLink::close() {
    if (std::exchange(isOpen_, false)) {
        QDBusConnection::disconnectFromPeer(name_);
    }
}

void BusLink::retryLater() {
    retry_.start(retryDelay_);
    retryDelay_ = std::min<std::chrono::milliseconds>(retryDelay_ * 2, longestRetryDelay);
}

void BusLink::lose() {
    if (!isOpen_) {
        return;
    }
    close();
    retryLater();
    if (std::exchange(isConnected_, false)) {
        observers_.notify();
    }
}

void BusLink::ask(const QDBusMessage& question, QObject* asker, Answer take) {
    if (!isOpen_) {
        return;
    }
    auto* const call = new QDBusPendingCallWatcher(connection().asyncCall(question), asker);
    QObject::connect(
        call, &QDBusPendingCallWatcher::finished, asker,
        [this, self = QPointer<BusLink>(this), call, take = std::move(take), number = connectionNumber_] {
            call->deleteLater();
            if (self && isOpen_ && number == connectionNumber_) {
                take(call->reply());
            }
        });
}

/// Qt adds no match rule on what it believes to be a peer.
void BusLink::follow(const Signal& signal, QObject* receiver, const char* slot) {
    if (!isOpen_) {
        return;
    }
    connection().connect(QString(), signal.path, signal.interface, signal.member, firstArguments(signal),
                         QString(), receiver, slot);
    connection().send(busCall("AddMatch") << matchRule(signal));
}

void BusLink::unfollow(const Signal& signal, QObject* receiver, const char* slot) {
    if (!isOpen_) {
        return;
    }
    connection().disconnect(QString(), signal.path, signal.interface, signal.member, firstArguments(signal),
                            QString(), receiver, slot);
    connection().send(busCall("RemoveMatch") << matchRule(signal));
}

QDBusConnection BusLink::connection() const {
    return QDBusConnection(name_);
}

} // namespace kestrelfen
