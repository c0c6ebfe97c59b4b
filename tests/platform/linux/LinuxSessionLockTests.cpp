#include "platform/linux/LinuxSessionLock.hpp"
#include "platform/linux/Login1Mock.hpp"
#include "platform/linux/LongestGap.hpp"
#include "platform/linux/ScreenSaverMock.hpp"
#include "platform/linux/SystemSignalsTest.hpp"

#include <QElapsedTimer>

#include <optional>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

/// Longer than one way of locking is given.
constexpr auto patience = 1500ms;

constexpr LinuxSystemSignals::Capabilities displaysAlone{false, false, false, true};
constexpr LinuxSystemSignals::Capabilities displaysAndSaver{false, true, false, true};
constexpr LinuxSystemSignals::Capabilities everything{true, true, true, true};

class LinuxSessionLockTest : public SystemSignalsTest {
  protected:
    using Outcome = SessionLockResult::Outcome;

    void makeLock(const Capabilities& expected) {
        listenAndSettle(expected);
        lock_.emplace(*systemBus_, *sessionBus_, *signals_, log_);
    }

    SessionLockResult lock() {
        const bool isAvailable = lock_->isAvailable();
        const SessionLockResult result = lock_->lock();
        EXPECT_EQ(isAvailable, result.outcome == Outcome::started);
        return result;
    }

    void expectLogged(LogLevel level, const std::string& text) const {
        ASSERT_EQ(log_.lines().size(), 1U);
        EXPECT_EQ(log_.lines().front(), (FakeLog::Line{level, "SessionLock", text}));
    }

    FakeLog log_;
    std::optional<LinuxSessionLock> lock_;
};

TEST_F(LinuxSessionLockTest, Login1LocksAndThenNobodyElseIsAsked) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    login1.onLock(
        "self.UpdateProperties('org.freedesktop.login1.Session', {'LockedHint': dbus.Boolean(True)})");
    makeLock(everything);
    EXPECT_EQ(lock().outcome, Outcome::started);
    EXPECT_EQ(next(), "screenIsLocked");
    pass(patience);
    EXPECT_EQ(login1.lockCalls(), 1);
    EXPECT_EQ(saver.lockCalls(), 0);
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(LinuxSessionLockTest, AScreenSaverThatFollowsLogin1IsNotAskedBesides) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    makeLock(everything);
    EXPECT_EQ(lock().outcome, Outcome::started);
    pass(300ms);
    saver.setActive(true);
    pass(patience);
    EXPECT_EQ(saver.lockCalls(), 0);
}

TEST_F(LinuxSessionLockTest, WhereLogin1LocksNothingTheScreenSaverDoesAfterASecond) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    makeLock(everything);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(lock().outcome, Outcome::started);
    EXPECT_EQ(next(), "screenIsLocked");
    EXPECT_GE(time.elapsed(), 950);
    EXPECT_EQ(login1.lockCalls(), 1);
    EXPECT_EQ(saver.lockCalls(), 1);
}

TEST_F(LinuxSessionLockTest, WhereLogin1RefusesTheScreenSaverLocksAtOnce) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    login1.onLock("raise dbus.exceptions.DBusException('not you', name='org.example.No')");
    makeLock(everything);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(lock().outcome, Outcome::started);
    EXPECT_EQ(next(), "screenIsLocked");
    EXPECT_LT(time.elapsed(), 900);
    expectLogged(LogLevel::error, "could not lock the screen: not you");
}

TEST_F(LinuxSessionLockTest, ALateRefusalCutsNoLaterWayShort) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock gnome(sessionDaemon_);
    const ScreenSaverMock general(sessionDaemon_, "org.freedesktop.ScreenSaver");
    login1.onLock("time.sleep(1.3)\nraise dbus.exceptions.DBusException('not you', name='org.example.No')");
    gnome.onLock("");
    makeLock(everything);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(lock().outcome, Outcome::started);
    EXPECT_EQ(next(), "screenIsLocked");
    EXPECT_GE(time.elapsed(), 1900);
    expectLogged(LogLevel::error, "could not lock the screen: not you");
}

TEST_F(LinuxSessionLockTest, ALogin1ThatHangsHoldsUpNothing) {
    const Login1Mock login1(systemDaemon_);
    const ScreenSaverMock saver(sessionDaemon_);
    makeLock(everything);
    login1.service().suspend();
    EXPECT_LE(LongestGap::during([this] { EXPECT_EQ(lock().outcome, Outcome::started); }),
              LongestGap::longestStep);
    EXPECT_EQ(next(), "screenIsLocked");
    login1.service().resume();
}

TEST_F(LinuxSessionLockTest, WithoutLogin1EachScreenSaverIsTriedTheGeneralOneLast) {
    const ScreenSaverMock general(sessionDaemon_, "org.freedesktop.ScreenSaver");
    const ScreenSaverMock cinnamon(sessionDaemon_, "org.cinnamon.ScreenSaver");
    cinnamon.onLock("");
    makeLock(displaysAndSaver);
    EXPECT_EQ(lock().outcome, Outcome::started);
    pass(500ms);
    EXPECT_EQ(cinnamon.lockCalls(), 1);
    EXPECT_EQ(general.lockCalls(), 0);
    EXPECT_EQ(next(), "screenIsLocked");
    EXPECT_EQ(general.lockCalls(), 1);
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(LinuxSessionLockTest, ASecondWishJoinsTheOneUnderWay) {
    const Login1Mock login1(systemDaemon_);
    makeLock(everything);
    EXPECT_EQ(lock().outcome, Outcome::started);
    EXPECT_EQ(lock().outcome, Outcome::started);
    pass(patience);
    EXPECT_EQ(login1.lockCalls(), 1);
    EXPECT_EQ(lock().outcome, Outcome::started);
    pass(100ms);
    EXPECT_EQ(login1.lockCalls(), 2);
}

TEST_F(LinuxSessionLockTest, AWayThatTellsNothingIsToldInTheLog) {
    const Login1Mock login1(systemDaemon_);
    makeLock(everything);
    EXPECT_EQ(lock().outcome, Outcome::started);
    pass(patience);
    expectLogged(LogLevel::info, "nothing tells that the screen was locked");
}

TEST_F(LinuxSessionLockTest, WithoutAnyWayItIsMissing) {
    makeLock(displaysAlone);
    EXPECT_EQ(lock().outcome, Outcome::missing);
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(LinuxSessionLockTest, WithoutAnyBusItIsMissing) {
    systemDaemon_.stop();
    sessionDaemon_.stop();
    makeLock(displaysAlone);
    EXPECT_EQ(lock().outcome, Outcome::missing);
}

TEST_F(LinuxSessionLockTest, AWayThatComesAndGoesIsTold) {
    makeLock(displaysAlone);
    EXPECT_FALSE(lock_->isAvailable());
    {
        const ScreenSaverMock saver(sessionDaemon_);
        EXPECT_TRUE(waitUntil([this] { return lock_->isAvailable(); }));
    }
    EXPECT_TRUE(waitUntil([this] { return !lock_->isAvailable(); }));
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(LinuxSessionLockTest, ALostBusIsAFailureWithItsReason) {
    makeLock(displaysAlone);
    sessionDaemon_.stop();
    EXPECT_TRUE(waitUntil([this] { return sessionBus_->isLost(); }));
    const auto first = lock();
    EXPECT_EQ(first.outcome, Outcome::failed);
    EXPECT_EQ(first.reason, "the connection to the session bus is lost");

    systemDaemon_.stop();
    EXPECT_TRUE(waitUntil([this] { return systemBus_->isLost(); }));
    const auto second = lock();
    EXPECT_EQ(second.outcome, Outcome::failed);
    EXPECT_EQ(second.reason, "the connection to the system bus is lost");
}

TEST_F(LinuxSessionLockTest, OneLostBusLeavesTheOther) {
    const ScreenSaverMock saver(sessionDaemon_);
    makeLock(displaysAndSaver);
    systemDaemon_.stop();
    EXPECT_TRUE(waitUntil([this] { return systemBus_->isLost(); }));
    EXPECT_EQ(lock().outcome, Outcome::started);
    EXPECT_EQ(next(), "screenIsLocked");
}

} // namespace
} // namespace kestrelfen
