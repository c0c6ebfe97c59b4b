#include "platform/linux/PrivateBus.hpp"

#include <QFile>
#include <gtest/gtest.h>

namespace kestrelfen {

namespace {

constexpr char configuration[] =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

QString configurationIn(const QTemporaryDir& folder) {
    QFile file(folder.filePath("bus.conf"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(configuration);
    return file.fileName();
}

} // namespace

PrivateBus::PrivateBus()
    : daemon_("dbus-daemon", {"--config-file=" + configurationIn(folder_), "--nofork", "--print-address"}) {
    const QString address = daemon_.readLine();
    EXPECT_FALSE(address.isEmpty()) << "dbus-daemon did not start";
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
}

BusConnection::BusConnection() {
    static int count = 0;
    name_ = "test " + QString::number(++count);
    QDBusConnection::connectToBus(QString::fromUtf8(qgetenv("DBUS_SESSION_BUS_ADDRESS")), name_);
}

BusConnection::~BusConnection() {
    QDBusConnection::disconnectFromBus(name_);
}

} // namespace kestrelfen
