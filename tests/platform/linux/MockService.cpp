#include "platform/linux/MockService.hpp"

#include "platform/linux/EventLoop.hpp"

#include <QDBusArgument>
#include <gtest/gtest.h>

#include <csignal>

namespace kestrelfen {

namespace {

constexpr char mockInterface[] = "org.freedesktop.DBus.Mock";

QStringList onThisBus(const QStringList& arguments) {
    return QStringList{"-m", "dbusmock", "--session", "--logfile", "/dev/null"} + arguments;
}

} // namespace

MockService::MockService(const BusDaemon& bus, const QString& name, const QString& path,
                         const QString& interface)
    : MockService(bus, name, path, interface, QStringList{name, path, interface}) {}

MockService::MockService(const BusDaemon& bus, const QString& name, const QString& path,
                         const QString& interface, const QString& templateName)
    : MockService(bus, name, path, interface, QStringList{"--template", templateName}) {}

MockService::MockService(const BusDaemon& bus, const QString& name, const QString& path,
                         const QString& interface, const QStringList& arguments)
    : bus_(bus), name_(name), path_(path), interface_(interface),
      process_("/usr/bin/env", QStringList{"DBUS_SESSION_BUS_ADDRESS=" + bus.address(), "/usr/bin/python3"} +
                                   onThisBus(arguments)) {
    EXPECT_TRUE(waitUntil([this] { return bus_.hasOwner(name_); })) << name_.toStdString();
}

QVariant MockService::ask(const QString& path, const QString& interface, const QString& method,
                          const QVariantList& arguments) const {
    auto message = QDBusMessage::createMethodCall(name_, path, interface, method);
    message.setArguments(arguments);
    const QDBusMessage answer = bus_.call(message);
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage)
        << method.toStdString() << ": " << answer.errorMessage().toStdString();
    return answer.arguments().value(0);
}

QVariant MockService::tell(const QString& path, const QString& method, const QVariantList& arguments) const {
    return ask(path, mockInterface, method, arguments);
}

void MockService::addMethod(const QString& name, const QString& in, const QString& out,
                            const QString& code) const {
    tell(path_, "AddMethod", {interface_, name, in, out, code});
}

void MockService::emitSignal(const QString& path, const QString& interface, const QString& name,
                             const QString& signature, const QVariantList& arguments) const {
    tell(path, "EmitSignal", {interface, name, signature, arguments});
}

void MockService::changeProperties(const QString& path, const QString& interface,
                                   const QVariantMap& values) const {
    tell(path, "UpdateProperties", {interface, values});
}

int MockService::callsOf(const QString& path, const QString& method) const {
    const auto calls = tell(path, "GetMethodCalls", {method}).value<QDBusArgument>();
    int count = 0;
    for (calls.beginArray(); !calls.atEnd(); ++count) {
        static_cast<void>(calls.asVariant());
    }
    calls.endArray();
    return count;
}

void MockService::suspend() const {
    ::kill(static_cast<pid_t>(process_.id()), SIGSTOP);
}

void MockService::resume() const {
    ::kill(static_cast<pid_t>(process_.id()), SIGCONT);
}

} // namespace kestrelfen
