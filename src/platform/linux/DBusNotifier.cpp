#include "platform/linux/DBusNotifier.hpp"

#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace kestrelfen {

namespace {

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

void DBusNotifier::post(const Notification& notification) {
    auto message =
        QDBusMessage::createMethodCall("org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                                       "org.freedesktop.Notifications", "Notify");
    // The daemon reads the body as markup, and the title as it is.
    message << "Kestrelfen" << newNotification << "kestrelfen" << QString::fromStdString(notification.title)
            << QString::fromStdString(notification.body).toHtmlEscaped() << QStringList()
            << hints(notification) << expireByDefault;
    bus_.send(message);
}

} // namespace kestrelfen
