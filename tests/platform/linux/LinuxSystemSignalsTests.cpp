#include "platform/linux/LinuxDisplayPower.hpp"
#include "platform/linux/Login1Mock.hpp"
#include "platform/linux/ScreenSaverMock.hpp"
#include "platform/linux/SystemSignalsTest.hpp"

#include <QDBusConnectionInterface>
#include <QDBusVariant>

namespace kestrelfen {
namespace {

constexpr LinuxSystemSignals::Capabilities displaysAlone{false, false, false, true};
constexpr LinuxSystemSignals::Capabilities everything{true, true, true, true};

class LinuxSystemSignalsTest : public SystemSignalsTest {
  public:
    ~LinuxSystemSignalsTest() override {
        qputenv("DISPLAY", display_);
        outputOf("xset", {"s", "reset"});
    }

  private:
    QByteArray display_ = qgetenv("DISPLAY");
};

TEST_F(LinuxSystemSignalsTest, NothingIsToldOfTheStateFoundAtTheStart) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_, "org.gnome.ScreenSaver", true);
    login1.prepareForSleep(true);
    login1.setLockedHint(true);
    login1.setActive(false);
    outputOf("xset", {"s", "activate"});

    listenAndSettle(everything);
    EXPECT_TRUE(signals_->isLocked());
    EXPECT_TRUE(signals_->areDisplaysAsleep());

    login1.prepareForSleep(false);
    EXPECT_EQ(next(), "didWake");
    login1.setActive(true);
    EXPECT_EQ(next(), "sessionDidBecomeActive");
    login1.setLockedHint(false);
    EXPECT_EQ(nextAfterQuiet(), "");
    saver.setActive(false);
    EXPECT_EQ(next(), "screenIsUnlocked");
    outputOf("xset", {"s", "reset"});
    EXPECT_EQ(next(), "screensDidWake");
}

TEST_F(LinuxSystemSignalsTest, OneSourceThatSaysLockedAtTheStartIsNoChange) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    login1.setLockedHint(true);
    listenAndSettle(everything);
    EXPECT_TRUE(signals_->isLocked());
    login1.setLockedHint(false);
    EXPECT_EQ(next(), "screenIsUnlocked");
}

TEST_F(LinuxSystemSignalsTest, ALockOfWhichLogin1AndTheScreenSaverTellIsOne) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    listenAndSettle(everything);
    for (int times = 0; times < 2; ++times) {
        login1.setLockedHint(true);
        saver.setActive(true);
        EXPECT_EQ(nextAfterQuiet(), "screenIsLocked");
        saver.setActive(false);
        login1.setLockedHint(false);
        EXPECT_EQ(nextAfterQuiet(), "screenIsUnlocked");
    }
}

TEST_F(LinuxSystemSignalsTest, WhatIsToldAgainUnchangedIsNoChange) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    listenAndSettle(everything);
    login1.setActive(true);
    login1.setLockedHint(false);
    login1.prepareForSleep(false);
    saver.setActive(false);
    EXPECT_EQ(nextAfterQuiet(), "");
}

TEST_F(LinuxSystemSignalsTest, AnotherSessionIsNoConcern) {
    const Login1Mock login1(systemDaemon_);
    listenAndSettle(everything);
    login1.setLockedHint(true, "c2");
    login1.setActive(false, "c2");
    EXPECT_EQ(nextAfterQuiet(), "");
}

TEST_F(LinuxSystemSignalsTest, APropertyThatIsOnlySaidToHaveChangedIsAskedFor) {
    const Login1Mock login1(systemDaemon_);
    listenAndSettle(everything);
    const QString session = "/org/freedesktop/login1/session/c1";
    const QString interface = "org.freedesktop.login1.Session";
    const QString code = R"(
self.props['org.freedesktop.login1.Session']['LockedHint'] = dbus.Boolean(True)
self.EmitSignal('org.freedesktop.DBus.Properties', 'PropertiesChanged', 'sa{sv}as',
                ['org.freedesktop.login1.Session', {}, ['LockedHint']])
)";
    login1.service().tell(session, "AddMethod", {interface, "Begin", "", "", code});
    login1.service().ask(session, interface, "Begin");
    EXPECT_EQ(next(), "screenIsLocked");
}

TEST_F(LinuxSystemSignalsTest, NobodyElseIsBelieved) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    listenAndSettle(everything);
    auto sleep = QDBusMessage::createSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                                            "PrepareForSleep");
    auto lock =
        QDBusMessage::createSignal("/org/gnome/ScreenSaver", "org.gnome.ScreenSaver", "ActiveChanged");
    systemDaemon_.connection().send(sleep << true);
    sessionDaemon_.connection().send(lock << true);

    for (const QString& everybody :
         systemDaemon_.connection().interface()->registeredServiceNames().value()) {
        systemDaemon_.connection().send(
            QDBusMessage::createTargetedSignal(everybody, "/org/freedesktop/login1",
                                               "org.freedesktop.login1.Manager", "PrepareForSleep")
            << true);
    }
    EXPECT_EQ(nextAfterQuiet(), "");
}

TEST_F(LinuxSystemSignalsTest, ASignalOfAnotherShapeIsIgnored) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    listenAndSettle(everything);
    login1.service().emitSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                                "PrepareForSleep", "s", {"true"});
    saver.service().emitSignal("/org/gnome/ScreenSaver", "org.gnome.ScreenSaver", "ActiveChanged", "", {});
    login1.service().changeProperties("/org/freedesktop/login1/session/c1", "org.freedesktop.login1.Session",
                                      {{"LockedHint", "true"}});
    EXPECT_EQ(nextAfterQuiet(), "");
}

TEST_F(LinuxSystemSignalsTest, AStillMachineTellsOnlyOfItsDisplays) {
    listenAndSettle(displaysAlone);
    EXPECT_FALSE(signals_->isLocked());
}

TEST_F(LinuxSystemSignalsTest, GnomesCompositorTellsOfSleepingDisplays) {
    const MockService mutter(sessionDaemon_, "org.gnome.Mutter.DisplayConfig",
                             "/org/gnome/Mutter/DisplayConfig", "org.gnome.Mutter.DisplayConfig");
    const auto save = [&mutter](int mode) {
        mutter.changeProperties("/org/gnome/Mutter/DisplayConfig", "org.gnome.Mutter.DisplayConfig",
                                {{"PowerSaveMode", mode}});
    };
    mutter.tell("/org/gnome/Mutter/DisplayConfig", "AddProperty",
                {"org.gnome.Mutter.DisplayConfig", "PowerSaveMode", QVariant::fromValue(QDBusVariant(0))});
    qputenv("DISPLAY", ":4711");
    listenAndSettle(displaysAlone);
    const LinuxDisplayPower power(*signals_);
    EXPECT_FALSE(power.isMainDisplayAsleep());

    save(3);
    EXPECT_EQ(next(), "screensDidSleep");
    EXPECT_TRUE(power.isMainDisplayAsleep());
    save(1);
    EXPECT_EQ(nextAfterQuiet(), "");
    save(0);
    EXPECT_EQ(next(), "screensDidWake");
    EXPECT_FALSE(power.isMainDisplayAsleep());
    save(-1);
    EXPECT_EQ(nextAfterQuiet(), "");
    EXPECT_EQ(signals_->capabilities(), Capabilities());
}

class EachScreenSaver : public SystemSignalsTest, public testing::WithParamInterface<const char*> {};

TEST_P(EachScreenSaver, TellsOfLocks) {
    const ScreenSaverMock saver(sessionDaemon_, GetParam());
    listenAndSettle({false, true, false, true});
    saver.setActive(true);
    EXPECT_EQ(next(), "screenIsLocked");
    saver.setActive(false);
    EXPECT_EQ(next(), "screenIsUnlocked");
}

INSTANTIATE_TEST_SUITE_P(Linux, EachScreenSaver,
                         testing::Values("org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver",
                                         "org.xfce.ScreenSaver", "org.cinnamon.ScreenSaver",
                                         "org.mate.ScreenSaver"));

class EachWayToTheSession : public SystemSignalsTest, public testing::WithParamInterface<Login1Mock::Finds> {
  public:
    ~EachWayToTheSession() override { qunsetenv("XDG_SESSION_ID"); }
};

TEST_P(EachWayToTheSession, FindsTheRealOne) {
    const Login1Mock login1(systemDaemon_, GetParam());
    qputenv("XDG_SESSION_ID", GetParam() == Login1Mock::Finds::byName ? "c1" : "gone");
    listenAndSettle(everything);
    login1.setLockedHint(true);
    EXPECT_EQ(next(), "screenIsLocked");
}

INSTANTIATE_TEST_SUITE_P(Linux, EachWayToTheSession,
                         testing::Values(Login1Mock::Finds::byProcess, Login1Mock::Finds::byName,
                                         Login1Mock::Finds::byAlias));

TEST_F(LinuxSystemSignalsTest, WithoutASessionOnlySleepIsToldUntilThereIsOne) {
    const Login1Mock login1(systemDaemon_, Login1Mock::Finds::notAtFirst);
    listenAndSettle({true, false, false, true});
    login1.prepareForSleep(true);
    EXPECT_EQ(next(), "willSleep");
    login1.logIn();
    EXPECT_TRUE(waitFor(everything));
    EXPECT_EQ(nextAfterQuiet(), "");
    login1.setLockedHint(true);
    EXPECT_EQ(next(), "screenIsLocked");
}

} // namespace
} // namespace kestrelfen
