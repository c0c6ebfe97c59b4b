#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

namespace kestrelfen {

/// An accessibility service that is off, and lets nobody change that.
class LockedService final : public QDBusVirtualObject {
  public:
    explicit LockedService(const QDBusConnection& sessionBus) : bus_(sessionBus) {
        EXPECT_TRUE(bus_.registerVirtualObject("/org/a11y/bus", this));
        EXPECT_TRUE(bus_.registerService("org.a11y.Bus"));
    }
    ~LockedService() override {
        bus_.unregisterService("org.a11y.Bus");
        bus_.unregisterObject("/org/a11y/bus");
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QVariantMap all{{"IsEnabled", false}, {"ScreenReaderEnabled", false}};
        if (message.member() == "Set") {
            return connection.send(message.createErrorReply(QDBusError::AccessDenied, "locked"));
        }
        return connection.send(message.createReply(
            message.member() == "GetAll" ? QVariant(all) : QVariant::fromValue(QDBusVariant(false))));
    }

  private:
    QDBusConnection bus_;
};

} // namespace kestrelfen
