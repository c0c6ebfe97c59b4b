#include "platform/linux/ChildProcess.hpp"
#include "platform/linux/DBusNotifier.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/PrivateBus.hpp"

#include <QElapsedTimer>
#include <QJsonArray>
#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class DBusNotifierTest : public testing::Test {
  protected:
    BusConnection bus_;
    BusLink link_{BusLink::Bus::session};
    DBusNotifier notifier_{bus_.get(), link_};
};

TEST_F(DBusNotifierTest, HandsTheNotificationOver) {
    ChildProcess daemon("/usr/bin/python3", {SCRIPT_DIR "/notification_recorder.py"});
    daemon.readLine();

    notifier_.post({"Time for a <break>", "20 feet & more", false});
    const QJsonObject quiet = daemon.readObject();
    EXPECT_EQ(quiet["application"].toString(), "Kestrelfen");
    EXPECT_EQ(quiet["icon"].toString(), "app.kestrelfen.Kestrelfen");
    EXPECT_EQ(quiet["replaces"].toInt(-1), 0);
    EXPECT_EQ(quiet["title"].toString(), "Time for a <break>");
    EXPECT_EQ(quiet["body"].toString(), "20 feet &amp; more");
    EXPECT_TRUE(quiet["actions"].isArray());
    EXPECT_EQ(quiet["expire"].toInt(), -1);
    EXPECT_EQ(quiet["hints"].toObject(),
              (QJsonObject{{"desktop-entry", "app.kestrelfen.Kestrelfen"}, {"suppress-sound", true}}));

    notifier_.post({"Time for a break", "", true});
    EXPECT_EQ(
        daemon.readObject()["hints"].toObject(),
        (QJsonObject{{"desktop-entry", "app.kestrelfen.Kestrelfen"}, {"sound-name", "message-new-instant"}}));
}

TEST_F(DBusNotifierTest, ARealDaemonShowsIt) {
    const ChildProcess daemon("dunst", {"-config", "/dev/null"});
    ASSERT_TRUE(waitUntil([] { return !outputOf("dunstctl", {"count", "displayed"}).isEmpty(); }));
    notifier_.post({"Time for a break", "Look at something 20 feet away.", false});
    EXPECT_TRUE(waitUntil([] { return outputOf("dunstctl", {"count", "displayed"}) == "1"; }));
}

TEST_F(DBusNotifierTest, ADaemonThatComesAndGoesIsTold) {
    EXPECT_FALSE(notifier_.isAvailable());
    {
        const ChildProcess daemon("/usr/bin/python3", {SCRIPT_DIR "/notification_recorder.py"});
        EXPECT_TRUE(waitUntil([this] { return notifier_.isAvailable(); }));
    }
    EXPECT_TRUE(waitUntil([this] { return !notifier_.isAvailable(); }));
}

TEST_F(DBusNotifierTest, WithoutADaemonItReturnsAtOnce) {
    QElapsedTimer time;
    time.start();
    notifier_.post({"Time for a break", "", false});
    EXPECT_LT(time.elapsed(), 100);
}

TEST_F(DBusNotifierTest, WithoutABusItReturnsAtOnce) {
    BusLink link("unix:path=/nonexistent");
    DBusNotifier notifier(QDBusConnection("nowhere"), link);
    notifier.post({"Time for a break", "", false});
    EXPECT_FALSE(notifier.isAvailable());
}

} // namespace
} // namespace kestrelfen
