#pragma once

#include "platform/linux/StatusNotifierRegistration.hpp"
#include "platform/ports/TrayIcon.hpp"

#include <QDBusConnection>
#include <QDBusVirtualObject>

namespace kestrelfen {

/// The icon as a StatusNotifierItem on the session bus. Main thread only; it never waits for the bus.
class StatusNotifierItem final : public QDBusVirtualObject, public TrayIcon {
  public:
    explicit StatusNotifierItem(const QDBusConnection& sessionBus);
    ~StatusNotifierItem() override;

    void show(TrayContent content) override;
    void tooltipChanged() override;
    void labelChanged() override;
    bool isShown() const override { return registration_.isAccepted(); }

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

  private:
    void start();
    void emitSignal(const char* name, const QVariantList& arguments = {});
    bool handleProperties(const QDBusMessage& message);
    bool handleClick(const QDBusMessage& message);

    QDBusConnection bus_;
    TrayContent content_;
    bool isStarted_ = false;
    StatusNotifierRegistration registration_;
};

} // namespace kestrelfen
