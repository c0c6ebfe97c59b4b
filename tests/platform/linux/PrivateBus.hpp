#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QDBusConnection>
#include <QTemporaryDir>

namespace kestrelfen {

/// A session bus of its own on which nothing is started on demand, and which $DBUS_SESSION_BUS_ADDRESS names
/// from now on.
class PrivateBus {
  public:
    PrivateBus();

  private:
    QTemporaryDir folder_;
    ChildProcess daemon_;
};

/// A connection to the bus that ends with this object.
class BusConnection {
  public:
    BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;
    ~BusConnection();

    QDBusConnection get() const { return QDBusConnection(name_); }

  private:
    QString name_;
};

} // namespace kestrelfen
