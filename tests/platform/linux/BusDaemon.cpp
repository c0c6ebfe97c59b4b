#include "platform/linux/BusDaemon.hpp"

#include "platform/linux/EventLoop.hpp"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <csignal>

namespace kestrelfen {

namespace {

constexpr char configuration[] =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <servicedir>%1/services</servicedir>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

BusDaemon::BusDaemon(const char* variable, Start when)
    : variable_(variable), outerAddress_(qgetenv(variable)) {
    qputenv(variable, address().toUtf8());
    if (when == Start::atOnce) {
        start();
    }
}

BusDaemon::~BusDaemon() {
    stop();
    qputenv(variable_, outerAddress_);
}

void BusDaemon::start() {
    daemon_ = std::make_unique<ChildProcess>(
        "dbus-daemon", QStringList{"--config-file=" + writeConfiguration(), "--nofork", "--print-address"});
    const QString address = daemon_->readLine();
    EXPECT_FALSE(address.isEmpty()) << "dbus-daemon did not start";
    static int count = 0;
    connectionName_ = "bus daemon " + QString::number(++count);
    QDBusConnection::connectToBus(address, connectionName_);
}

void BusDaemon::stop() {
    if (daemon_) {
        QDBusConnection::disconnectFromBus(connectionName_);
        daemon_.reset();
        QFile::remove(socket());
    }
}

void BusDaemon::crash() {
    ::kill(static_cast<pid_t>(daemon_->id()), SIGKILL);
    stop();
}

void BusDaemon::suspend() const {
    ::kill(static_cast<pid_t>(daemon_->id()), SIGSTOP);
}

void BusDaemon::resume() const {
    ::kill(static_cast<pid_t>(daemon_->id()), SIGCONT);
}

QString BusDaemon::writeConfiguration() const {
    QFile file(folder_.filePath("bus.conf"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QString(configuration).arg(folder_.path()).toUtf8());
    return file.fileName();
}

void BusDaemon::offerToStart(const QString& name) const {
    QDir(folder_.path()).mkdir("services");
    QFile file(folder_.filePath("services/" + name + ".service"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QString("[D-BUS Service]\nName=%1\nExec=/bin/false\n").arg(name).toUtf8());
}

bool BusDaemon::hasOwner(const QString& name) const {
    return connection().interface()->isServiceRegistered(name);
}

QDBusMessage BusDaemon::call(const QDBusMessage& message) const {
    const auto pending = connection().asyncCall(message);
    EXPECT_TRUE(waitUntil([&pending] { return pending.isFinished(); }));
    return pending.reply();
}

} // namespace kestrelfen
