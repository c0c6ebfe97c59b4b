#include "platform/linux/AccessibilitySwitch.hpp"

#include "platform/ports/Preferences.hpp"

#include <QDBusArgument>
#include <QDBusVariant>

#include <chrono>
#include <utility>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

/// The desktop may have to start the service first.
constexpr auto longestTurning = 3s;

constexpr char serviceName[] = "org.a11y.Bus";
constexpr char servicePath[] = "/org/a11y/bus";
constexpr char statusInterface[] = "org.a11y.Status";
constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";
constexpr char accessDenied[] = "org.freedesktop.DBus.Error.AccessDenied";
constexpr char isEnabledProperty[] = "IsEnabled";
constexpr char screenReaderProperty[] = "ScreenReaderEnabled";

/// By the service's name, so that the desktop starts it.
QDBusMessage statusCall(const char* method) {
    return QDBusMessage::createMethodCall(serviceName, servicePath, propertiesInterface, method)
           << statusInterface;
}

QDBusMessage setting(bool isEnabled) {
    return statusCall("Set") << isEnabledProperty << QVariant::fromValue(QDBusVariant(isEnabled));
}

bool isReply(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage;
}

} // namespace

AccessibilitySwitch::AccessibilitySwitch(BusLink& sessionBus, Preferences& preferences)
    : sessionBus_(sessionBus), preferences_(preferences),
      service_(sessionBus, serviceName,
               {.appeared = [this] { properties_.look(servicePath); },
                .vanished = [this] { isOn_ = false; },
                .told = [this](const QDBusMessage& signal) { properties_.hear(signal); }}),
      properties_(service_, statusInterface,
                  [this](const QVariantMap& properties, BusProperties::Occasion occasion) {
                      take(properties, occasion);
                  }),
      subscription_(sessionBus.observe([this] { busChanged(); })) {
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this, [this] { tellWaiting(); });
}

void AccessibilitySwitch::busChanged() {
    if (!sessionBus_.isConnected()) {
        isOn_ = false;
        isTurningOn_ = false;
    } else if (isReleasing_) {
        releaseNow();
    }
}

void AccessibilitySwitch::take(const QVariantMap& properties, BusProperties::Occasion occasion) {
    if (!properties.contains(isEnabledProperty)) {
        return;
    }
    const bool wasOn = std::exchange(isOn_, properties.value(isEnabledProperty).toBool());
    if (isOn_) {
        isRefused_ = false;
    } else if (isOurs() && !isReleasing_ && !isTurningOn_) {
        // It may also have gone with the session in which it was turned on.
        isRefused_ = wasOn && occasion == BusProperties::Occasion::change;
        forgetOurs();
    }
}

void AccessibilitySwitch::turnOn(std::function<void(bool isOn)> completion) {
    isReleasing_ = false;
    isRefused_ = false;
    isWanted_ = true;
    if (isOn_) {
        completion(true);
        return;
    }
    waiting_.push_back(std::move(completion));
    deadline_.start(longestTurning);
    if (!isTurningOn_ && sessionBus_.isConnected()) {
        isTurningOn_ = true;
        askToTurnOn();
    }
}

void AccessibilitySwitch::askToTurnOn() {
    sessionBus_.ask(statusCall("Get") << isEnabledProperty, this, [this](const QDBusMessage& answer) {
        const bool isAnswered = isReply(answer) && answer.signature() == "v";
        if (isAnswered && qvariant_cast<QDBusVariant>(answer.arguments().at(0)).variant().toBool()) {
            finish(true);
        } else if (isAnswered && isWanted_) {
            setOn();
        } else {
            finish(false);
        }
    });
}

/// It is remembered first, so that it can be undone even if the program ends in between.
void AccessibilitySwitch::setOn() {
    preferences_.set(turnedOnKey, true);
    sessionBus_.ask(setting(true), this, [this](const QDBusMessage& answer) {
        isRefused_ = answer.errorName() == accessDenied;
        if (!isReply(answer)) {
            forgetOurs();
        }
        finish(isReply(answer));
    });
}

void AccessibilitySwitch::finish(bool isOn) {
    isTurningOn_ = false;
    isOn_ = isOn;
    tellWaiting();
}

void AccessibilitySwitch::tellWaiting() {
    deadline_.stop();
    for (const auto& completion : std::exchange(waiting_, {})) {
        completion(isOn_);
    }
}

void AccessibilitySwitch::release() {
    isWanted_ = false;
    isReleasing_ = isOurs();
    if (isReleasing_ && sessionBus_.isConnected()) {
        releaseNow();
    }
}

void AccessibilitySwitch::releaseNow() {
    sessionBus_.ask(statusCall("GetAll"), this, [this](const QDBusMessage& answer) {
        if (!isReleasing_ || !isReply(answer) || answer.signature() != "a{sv}") {
            return;
        }
        const auto properties = qdbus_cast<QVariantMap>(answer.arguments().at(0));
        // A screen reader that came since needs it.
        const bool isNeeded = properties.value(screenReaderProperty).toBool();
        if (properties.value(isEnabledProperty).toBool() && !isNeeded) {
            turnOff();
        } else {
            isReleasing_ = false;
            forgetOurs();
        }
    });
}

void AccessibilitySwitch::turnOff() {
    sessionBus_.ask(setting(false), this, [this](const QDBusMessage& answer) {
        if (isReply(answer) && std::exchange(isReleasing_, false)) {
            isOn_ = false;
            forgetOurs();
        }
    });
}

bool AccessibilitySwitch::isOurs() const {
    return preferences_.boolean(turnedOnKey).value_or(false);
}

void AccessibilitySwitch::forgetOurs() {
    preferences_.remove(turnedOnKey);
}

} // namespace kestrelfen
