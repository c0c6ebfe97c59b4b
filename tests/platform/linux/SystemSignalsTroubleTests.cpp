#include "platform/linux/Login1Mock.hpp"
#include "platform/linux/LongestGap.hpp"
#include "platform/linux/ScreenSaverMock.hpp"
#include "platform/linux/SystemSignalsTest.hpp"

#include <optional>

namespace kestrelfen {
namespace {

constexpr LinuxSystemSignals::Capabilities displaysAlone{false, false, false, true};
constexpr LinuxSystemSignals::Capabilities displaysAndSaver{false, true, false, true};
constexpr LinuxSystemSignals::Capabilities everything{true, true, true, true};

class SystemSignalsTroubleTest : public SystemSignalsTest {
  protected:
    void startServices() {
        login1_.emplace(systemDaemon_);
        saver_.emplace(sessionDaemon_);
    }

    /// As at the end of a trouble: each source is heard again, once.
    void expectEverySourceIsHeard() {
        login1_->prepareForSleep(true);
        EXPECT_EQ(nextAfterQuiet(), "willSleep");
        login1_->prepareForSleep(false);
        EXPECT_EQ(nextAfterQuiet(), "didWake");
        login1_->setActive(false);
        EXPECT_EQ(nextAfterQuiet(), "sessionDidResignActive");
        login1_->setActive(true);
        EXPECT_EQ(nextAfterQuiet(), "sessionDidBecomeActive");
        login1_->setLockedHint(true);
        EXPECT_EQ(nextAfterQuiet(), "screenIsLocked");
        login1_->setLockedHint(false);
        EXPECT_EQ(nextAfterQuiet(), "screenIsUnlocked");
        saver_->setActive(true);
        EXPECT_EQ(nextAfterQuiet(), "screenIsLocked");
        saver_->setActive(false);
        EXPECT_EQ(nextAfterQuiet(), "screenIsUnlocked");
    }

    std::optional<Login1Mock> login1_;
    std::optional<ScreenSaverMock> saver_;
};

TEST_F(SystemSignalsTroubleTest, ServicesThatComeLateAreHeard) {
    listenAndSettle(displaysAlone);
    startServices();
    EXPECT_TRUE(waitFor(everything));
    EXPECT_EQ(nextAfterQuiet(), "");
    expectEverySourceIsHeard();
}

TEST_F(SystemSignalsTroubleTest, ServicesThatStartAnewAreHeardAgain) {
    startServices();
    listenAndSettle(everything);
    login1_.reset();
    saver_.reset();
    EXPECT_TRUE(waitFor(displaysAlone));
    startServices();
    EXPECT_TRUE(waitFor(everything));
    EXPECT_EQ(nextAfterQuiet(), "");
    expectEverySourceIsHeard();
}

TEST_F(SystemSignalsTroubleTest, AScreenSaverThatDiesWhileItLocksTellsTheUnlockWhenItIsBack) {
    startServices();
    listenAndSettle(everything);
    saver_->setActive(true);
    EXPECT_EQ(next(), "screenIsLocked");
    saver_.reset();
    EXPECT_EQ(nextAfterQuiet(), "");
    EXPECT_TRUE(signals_->isLocked());
    saver_.emplace(sessionDaemon_);
    EXPECT_EQ(next(), "screenIsUnlocked");
}

TEST_F(SystemSignalsTroubleTest, TheNextUnlockCountsThoughTheScreenSaverThatLockedHasGone) {
    startServices();
    listenAndSettle(everything);
    login1_->setLockedHint(true);
    saver_->setActive(true);
    EXPECT_EQ(next(), "screenIsLocked");
    saver_.reset();
    EXPECT_EQ(nextAfterQuiet(), "");
    login1_->setLockedHint(false);
    EXPECT_EQ(next(), "screenIsUnlocked");
}

TEST_F(SystemSignalsTroubleTest, TheNextUnlockCountsThoughTheLogin1ThatLockedHasGone) {
    startServices();
    listenAndSettle(everything);
    login1_->setLockedHint(true);
    saver_->setActive(true);
    EXPECT_EQ(next(), "screenIsLocked");
    login1_.reset();
    EXPECT_EQ(nextAfterQuiet(), "");
    saver_->setActive(false);
    EXPECT_EQ(next(), "screenIsUnlocked");
}

TEST_F(SystemSignalsTroubleTest, BusesThatDieAreJoinedAgain) {
    startServices();
    listenAndSettle(everything);
    login1_->setActive(false);
    EXPECT_EQ(next(), "sessionDidResignActive");
    systemDaemon_.stop();
    sessionDaemon_.stop();
    EXPECT_TRUE(waitFor(displaysAlone));
    login1_.reset();
    saver_.reset();
    EXPECT_EQ(nextAfterQuiet(), "");
    EXPECT_TRUE(systemBus_->isLost());

    systemDaemon_.start();
    sessionDaemon_.start();
    startServices();
    EXPECT_TRUE(waitFor(everything));
    // Meanwhile the session has come to the front.
    EXPECT_EQ(next(), "sessionDidBecomeActive");
    expectEverySourceIsHeard();
}

TEST_F(SystemSignalsTroubleTest, ABusThatDiesWhileTheScreenIsLockedUnlocksNothing) {
    startServices();
    listenAndSettle(everything);
    saver_->setActive(true);
    EXPECT_EQ(next(), "screenIsLocked");
    sessionDaemon_.crash();
    EXPECT_TRUE(waitUntil([this] { return sessionBus_->isLost(); }));
    saver_.reset();
    EXPECT_EQ(nextAfterQuiet(), "");
    EXPECT_TRUE(signals_->isLocked());
    sessionDaemon_.start();
    saver_.emplace(sessionDaemon_);
    EXPECT_EQ(next(), "screenIsUnlocked");
}

TEST_F(SystemSignalsTroubleTest, BusesThatAreAbsentAtTheStartAreJoinedWhenTheyCome) {
    systemDaemon_.stop();
    sessionDaemon_.stop();
    listenAndSettle(displaysAlone);
    EXPECT_FALSE(systemBus_->isLost());
    systemDaemon_.start();
    sessionDaemon_.start();
    startServices();
    EXPECT_TRUE(waitFor(everything));
    EXPECT_EQ(nextAfterQuiet(), "");
    expectEverySourceIsHeard();
}

TEST_F(SystemSignalsTroubleTest, ServicesThatHangDelayNothingAndAreHeardOnceTheyGoOn) {
    startServices();
    login1_->service().suspend();
    saver_->service().suspend();
    EXPECT_LE(LongestGap::during([this] { listen({true, true, false, true}); }), LongestGap::longestStep);
    login1_->service().resume();
    saver_->service().resume();
    EXPECT_TRUE(waitFor(everything));
    EXPECT_EQ(nextAfterQuiet(), "");
    expectEverySourceIsHeard();
}

TEST_F(SystemSignalsTroubleTest, BusesThatHangDelayNothing) {
    startServices();
    systemDaemon_.suspend();
    sessionDaemon_.suspend();
    EXPECT_LE(LongestGap::during([this] { listen(displaysAlone); }), LongestGap::longestStep);
    systemDaemon_.resume();
    sessionDaemon_.resume();
    EXPECT_TRUE(waitFor(everything));
    EXPECT_EQ(nextAfterQuiet(), "");
    expectEverySourceIsHeard();
}

TEST_F(SystemSignalsTroubleTest, ABusThatIsNotThereDelaysNothing) {
    systemDaemon_.stop();
    sessionDaemon_.stop();
    EXPECT_LE(LongestGap::during([this] { listen(displaysAlone); }), LongestGap::longestStep);
}

TEST_F(SystemSignalsTroubleTest, AScreenSaverThatIsFoundActiveAfterItsStartHasLocked) {
    listenAndSettle(displaysAlone);
    const ScreenSaverMock saver(sessionDaemon_, "org.cinnamon.ScreenSaver", true);
    EXPECT_TRUE(waitFor(displaysAndSaver));
    EXPECT_EQ(next(), "screenIsLocked");
}

} // namespace
} // namespace kestrelfen
