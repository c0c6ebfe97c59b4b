#include "platform/linux/DBusNotifier.hpp"

#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace kestrelfen {

namespace {

constexpr char daemonName[] = "org.freedesktop.Notifications";
constexpr char daemonPath[] = "/org/freedesktop/Notifications";

/// The daemon's number for a notification that replaces none.
constexpr uint newNotification = 0;
/// The daemon's own choice of how long to show it.
constexpr int expireByDefault = -1;

QVariantMap hints(const Notification& notification) {
    QVariantMap result{{"desktop-entry", "app.kestrelfen.Kestrelfen"}};
    if (notification.sound) {
        result.insert("sound-name", "message-new-instant");
    } else {
        result.insert("suppress-sound", true);
    }
    return result;
}

} // namespace

DBusNotifier::DBusNotifier(const QDBusConnection& sessionBus, BusLink& link)
    : bus_(sessionBus), daemon_(link, daemonName) {}

void DBusNotifier::post(const Notification& notification) {
    auto message = QDBusMessage::createMethodCall(daemonName, daemonPath, daemonName, "Notify");
    // The daemon reads the body as markup, and the title as it is.
    message << "Kestrelfen" << newNotification << "app.kestrelfen.Kestrelfen"
            << QString::fromStdString(notification.title)
            << QString::fromStdString(notification.body).toHtmlEscaped() << QStringList()
            << hints(notification) << expireByDefault;
    bus_.send(message);
}

} // namespace kestrelfen
