#include "platform/linux/StatusNotifierItem.hpp"

#include "platform/linux/StatusNotifierProperties.hpp"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace kestrelfen {

namespace {

constexpr char itemPath[] = "/StatusNotifierItem";
constexpr char itemInterface[] = "org.kde.StatusNotifierItem";
constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";

/// On Wayland no place on the screen is known to a program: hosts send their own window's coordinates, or
/// 0, 0 for want of any.
std::optional<TrayPoint> clickedPoint(const QDBusMessage& message) {
    const TrayPoint point{message.arguments().value(0).toInt(), message.arguments().value(1).toInt()};
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || point == TrayPoint{}) {
        return std::nullopt;
    }
    return point;
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& sessionBus)
    : bus_(sessionBus), registration_(sessionBus, [this] { notifyShown(); }) {}

StatusNotifierItem::~StatusNotifierItem() {
    bus_.unregisterObject(itemPath);
}

void StatusNotifierItem::show(TrayContent content) {
    const TrayContent old = std::exchange(content_, std::move(content));
    if (!isStarted_) {
        start();
        return;
    }
    if (content_.pictures != old.pictures) {
        emitSignal("NewIcon");
    }
    if (content_.title != old.title) {
        emitSignal("NewTitle");
    }
    tooltipChanged();
    labelChanged();
}

void StatusNotifierItem::start() {
    isStarted_ = true;
    if (bus_.isConnected()) {
        bus_.registerVirtualObject(itemPath, this);
        registration_.start();
    }
}

void StatusNotifierItem::tooltipChanged() {
    emitSignal("NewToolTip");
}

void StatusNotifierItem::labelChanged() {
    const StatusNotifierProperties properties(content_);
    emitSignal("XAyatanaNewLabel",
               {properties.value("XAyatanaLabel"), properties.value("XAyatanaLabelGuide")});
}

void StatusNotifierItem::emitSignal(const char* name, const QVariantList& arguments) {
    if (isShown()) {
        QDBusMessage signal = QDBusMessage::createSignal(itemPath, itemInterface, name);
        signal.setArguments(arguments);
        bus_.send(signal);
    }
}

QString StatusNotifierItem::introspect(const QString& /*path*/) const {
    return StatusNotifierProperties::introspection();
}

bool StatusNotifierItem::handleMessage(const QDBusMessage& message, const QDBusConnection& /*bus*/) {
    if (message.interface() == propertiesInterface) {
        return handleProperties(message);
    }
    const bool isOwn = message.interface().isEmpty() || message.interface() == itemInterface;
    return isOwn && handleClick(message);
}

bool StatusNotifierItem::handleProperties(const QDBusMessage& message) {
    const StatusNotifierProperties properties(content_);
    if (message.member() == "GetAll") {
        bus_.send(message.createReply(properties.all()));
        return true;
    }
    if (message.member() != "Get") {
        return false;
    }
    const QString name = message.arguments().value(1).toString();
    const QVariant value = properties.value(name);
    if (value.isValid()) {
        bus_.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
    } else {
        bus_.send(message.createErrorReply(QDBusError::UnknownProperty, "no property " + name));
    }
    return true;
}

bool StatusNotifierItem::handleClick(const QDBusMessage& message) {
    const QString member = message.member();
    const bool activates = member == "Activate" || member == "ContextMenu";
    if (!activates && member != "SecondaryActivate" && member != "Scroll") {
        return false;
    }
    bus_.send(message.createReply());
    if (activates) {
        activate(clickedPoint(message));
    }
    return true;
}

} // namespace kestrelfen
