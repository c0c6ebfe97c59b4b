#include "platform/linux/BusService.hpp"

#include <algorithm>
#include <utility>

namespace kestrelfen {

namespace {

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";

} // namespace

BusService::BusService(BusLink& bus, QString name, Listener listener)
    : bus_(bus), name_(std::move(name)), listener_(std::move(listener)),
      subscription_(bus.observe([this] { busChanged(); })) {
    if (bus_.isConnected()) {
        look();
    }
}

void BusService::busChanged() {
    if (bus_.isConnected()) {
        look();
    } else if (isOwned()) {
        isFirstLook_ = false;
        setOwner(QString());
    }
}

/// What is followed is followed before the first question, so that no change can come between the two.
void BusService::look() {
    bus_.follow({busName, busPath, busName, "NameOwnerChanged", name_}, this,
                SLOT(ownerChanged(QDBusMessage)));
    for (const Signal& signal : signals_) {
        bus_.follow(onBus(signal), this, SLOT(hear(QDBusMessage)));
    }
    auto question = QDBusMessage::createMethodCall(busName, busPath, busName, "GetNameOwner") << name_;
    bus_.ask(question, this, [this](const QDBusMessage& answer) {
        const bool isOwned = answer.type() == QDBusMessage::ReplyMessage;
        isFirstLook_ = !std::exchange(hasLooked_, true);
        setOwner(isOwned ? answer.arguments().value(0).toString() : QString());
    });
}

void BusService::ownerChanged(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (message.service() == busName && arguments.value(0).toString() == name_) {
        isFirstLook_ = false;
        setOwner(arguments.value(2).toString());
    }
}

void BusService::setOwner(const QString& owner) {
    owner_ = owner;
    ++ownerNumber_;
    const auto& tell = isOwned() ? listener_.appeared : listener_.vanished;
    if (tell) {
        tell();
    }
}

void BusService::follow(const Signal& signal) {
    signals_.push_back(signal);
    if (bus_.isConnected()) {
        bus_.follow(onBus(signal), this, SLOT(hear(QDBusMessage)));
    }
}

void BusService::unfollow(const Signal& signal) {
    const auto place = std::find(signals_.begin(), signals_.end(), signal);
    if (place == signals_.end()) {
        return;
    }
    signals_.erase(place);
    if (bus_.isConnected()) {
        bus_.unfollow(onBus(signal), this, SLOT(hear(QDBusMessage)));
    }
}

BusLink::Signal BusService::onBus(const Signal& signal) const {
    return {name_, signal.path, signal.interface, signal.member, signal.firstArgument};
}

void BusService::hear(const QDBusMessage& message) {
    if (isOwned() && message.service() == owner_ && listener_.told) {
        listener_.told(message);
    }
}

void BusService::ask(const Method& method, const QVariantList& arguments, const BusLink::Answer& take) {
    if (!isOwned()) {
        return;
    }
    auto question = QDBusMessage::createMethodCall(owner_, method.path, method.interface, method.name);
    question.setArguments(arguments);
    bus_.ask(question, this, [this, take, number = ownerNumber_](const QDBusMessage& answer) {
        if (number == ownerNumber_) {
            take(answer);
        }
    });
}

} // namespace kestrelfen
