#include "platform/linux/DBusSingleInstance.hpp"

#include <QDBusError>
#include <QDBusMessage>
#include <QVariantMap>

#include <string>
#include <utility>

namespace kestrelfen {

namespace {

constexpr char applicationName[] = "app.kestrelfen.Kestrelfen";
constexpr char applicationPath[] = "/app/kestrelfen/Kestrelfen";
constexpr char applicationInterface[] = "org.freedesktop.Application";

/// The claim and the request to the owner together stay within the second that a claim may take.
constexpr int answerMilliseconds = 500;

/// The bus's own numbers for RequestName.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;

constexpr char introspection[] = R"(<interface name="org.freedesktop.Application">
<method name="Activate"><arg type="a{sv}" name="platform_data" direction="in"/></method>
<method name="Open"><arg type="as" name="uris" direction="in"/>
<arg type="a{sv}" name="platform_data" direction="in"/></method>
<method name="ActivateAction"><arg type="s" name="action_name" direction="in"/>
<arg type="av" name="parameter" direction="in"/>
<arg type="a{sv}" name="platform_data" direction="in"/></method>
</interface>)";

} // namespace

DBusSingleInstance::DBusSingleInstance(const QDBusConnection& sessionBus, Log& log)
    : bus_(sessionBus), log_(log, "SingleInstance") {}

SingleInstance::Claim DBusSingleInstance::claim() {
    if (!bus_.isConnected()) {
        return refused(bus_.lastError().message());
    }
    // The object comes first, so that nobody finds the name without it.
    bus_.registerVirtualObject(applicationPath, this);
    auto request = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                  "org.freedesktop.DBus", "RequestName");
    request << QString(applicationName) << doNotQueue;
    const QDBusMessage reply = bus_.call(request, QDBus::Block, answerMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return refused(reply.errorMessage());
    }
    const uint answer = reply.arguments().value(0).toUInt();
    if (answer == primaryOwner || answer == alreadyOwner) {
        return Claim::first;
    }
    bus_.unregisterObject(applicationPath);
    askOwnerToShow();
    return Claim::second;
}

void DBusSingleInstance::onShow(std::function<void()> show) {
    show_ = std::move(show);
}

QString DBusSingleInstance::introspect(const QString& /*path*/) const {
    return introspection;
}

bool DBusSingleInstance::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    const QString member = message.member();
    const bool isKnown = member == "Activate" || member == "Open" || member == "ActivateAction";
    if (message.interface() != applicationInterface || !isKnown) {
        return false;
    }
    bus.send(message.createReply());
    if (const auto show = show_) {
        show();
    }
    return true;
}

SingleInstance::Claim DBusSingleInstance::refused(const QString& reason) {
    log_.error("no session bus, so another instance would not be noticed: " + reason.toStdString());
    return Claim::unavailable;
}

void DBusSingleInstance::askOwnerToShow() {
    auto request =
        QDBusMessage::createMethodCall(applicationName, applicationPath, applicationInterface, "Activate");
    request << QVariantMap();
    bus_.call(request, QDBus::Block, answerMilliseconds);
}

} // namespace kestrelfen
