#include "platform/fake/FakeLog.hpp"
#include "platform/linux/ChildProcess.hpp"
#include "platform/linux/DBusSingleInstance.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/PrivateBus.hpp"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <csignal>

namespace kestrelfen {
namespace {

ChildProcess startInstance() {
    return {QCoreApplication::applicationFilePath(), {"--instance"}};
}

QDBusMessage applicationCall(const QString& method) {
    return QDBusMessage::createMethodCall("app.kestrelfen.Kestrelfen", "/app/kestrelfen/Kestrelfen",
                                          "org.freedesktop.Application", method);
}

TEST(DBusSingleInstance, ALaterStartAsksTheFirstToShowItself) {
    ChildProcess first = startInstance();
    EXPECT_EQ(first.readLine(), "first");

    ChildProcess second = startInstance();
    EXPECT_EQ(second.readLine(), "second");
    EXPECT_TRUE(waitUntil([&second] { return !second.isRunning(); }));
    EXPECT_EQ(first.readLine(), "show");

    first.stop();
    ChildProcess third = startInstance();
    EXPECT_EQ(third.readLine(), "first");
}

TEST(DBusSingleInstance, AnOwnerThatHangsDelaysALaterStartByASecondAtMost) {
    ChildProcess first = startInstance();
    ASSERT_EQ(first.readLine(), "first");
    ::kill(static_cast<pid_t>(first.id()), SIGSTOP);

    QElapsedTimer time;
    time.start();
    ChildProcess second = startInstance();
    EXPECT_EQ(second.readLine(), "second");
    EXPECT_LT(time.elapsed(), 2000);
}

TEST(DBusSingleInstance, TheDesktopMayAskInEachOfItsWays) {
    const BusConnection bus;
    const BusConnection desktop;
    FakeLog log;
    DBusSingleInstance instance(bus.get(), log);
    int shows = 0;
    instance.onShow([&shows] { ++shows; });
    ASSERT_EQ(instance.claim(), SingleInstance::Claim::first);

    auto activate = applicationCall("Activate");
    activate << QVariantMap();
    auto open = applicationCall("Open");
    open << QStringList() << QVariantMap();
    auto action = applicationCall("ActivateAction");
    action << QString("show") << QVariantList() << QVariantMap();
    for (const auto& message : {activate, open, action}) {
        desktop.get().send(message);
    }
    EXPECT_TRUE(waitUntil([&shows] { return shows == 3; }));

    const auto answer = desktop.get().asyncCall(applicationCall("Quit"));
    EXPECT_TRUE(waitUntil([&answer] { return answer.isFinished(); }));
    EXPECT_TRUE(answer.isError());
    EXPECT_TRUE(log.lines().empty());
}

TEST(DBusSingleInstance, WithoutABusTheClaimIsUnavailable) {
    FakeLog log;
    DBusSingleInstance instance(QDBusConnection("nowhere"), log);
    EXPECT_EQ(instance.claim(), SingleInstance::Claim::unavailable);
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_EQ(log.lines().front().category, "SingleInstance");
}

TEST(DBusSingleInstance, ABusThatCannotBeReachedIsNone) {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    ChildProcess instance = startInstance();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    EXPECT_EQ(instance.readLine(), "SingleInstance");
    EXPECT_EQ(instance.readLine(), "unavailable");
}

} // namespace
} // namespace kestrelfen
