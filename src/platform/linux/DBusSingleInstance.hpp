#pragma once

#include "platform/ports/Log.hpp"
#include "platform/ports/SingleInstance.hpp"

#include <QDBusConnection>
#include <QDBusVirtualObject>

namespace kestrelfen {

/// The program's name on the session bus, and the object by which the desktop or a later start asks it to
/// show itself. Main thread only.
class DBusSingleInstance final : public QDBusVirtualObject, public SingleInstance {
  public:
    DBusSingleInstance(const QDBusConnection& sessionBus, Log& log);

    Claim claim() override;
    void onShow(std::function<void()> show) override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

  private:
    Claim refused(const QString& reason);
    void askOwnerToShow();

    QDBusConnection bus_;
    Logger log_;
    std::function<void()> show_;
};

} // namespace kestrelfen
