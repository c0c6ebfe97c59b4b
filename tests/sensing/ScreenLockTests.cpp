#include "sensing/SensingEngineTest.hpp"

namespace kestrelfen {
namespace {

class ScreenLockTest : public SensingEngineTest {
  protected:
    bool lock() { return ScreenLock(platform.sessionLock, platform.log).lock(); }
};

TEST_F(ScreenLockTest, AStartedLockIsAnsweredAndLogged) {
    EXPECT_TRUE(lock());
    EXPECT_EQ(happened(), lines({"08:00:00 session locks",
                                 "08:00:00 log info ScreenLock: screen locked at break start"}));
}

TEST_F(ScreenLockTest, AMissingWayToLockIsAnErrorLine) {
    platform.sessionLock.setResult({SessionLockResult::Outcome::missing});
    EXPECT_FALSE(lock());
    EXPECT_EQ(happened(),
              lines({"08:00:00 log error ScreenLock: CGSession is not present at the expected path"}));
}

TEST_F(ScreenLockTest, AFailedLockIsAnErrorLineWithTheSystemsReason) {
    platform.sessionLock.setResult({SessionLockResult::Outcome::failed, "Permission denied"});
    EXPECT_FALSE(lock());
    EXPECT_EQ(happened(),
              lines({"08:00:00 log error ScreenLock: could not lock the screen: Permission denied"}));
}

TEST_F(ScreenLockTest, ABreakLocksTheScreenAfterItsLine) {
    prefer("lockOnBreakStart", true);
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20", "08:20:00 session locks",
                                 "08:20:00 log info ScreenLock: screen locked at break start"}));
    run(19);
    EXPECT_EQ(happened(), "") << "once per break";
}

TEST_F(ScreenLockTest, WithoutTheWishABreakNeverLocks) {
    prefer("lockOnBreakStart", false);
    start();
    tickAt("08:20:00");
    EXPECT_EQ(happened(), lines({"08:20:00 log break 20 s → ends 08:20"}));
}

TEST_F(ScreenLockTest, ASystemWithoutAWayToLockLogsTheErrorAtEachBreakAndTheBreakProceeds) {
    platform.sessionLock.setResult({SessionLockResult::Outcome::missing});
    prefer("lockOnBreakStart", true);
    start();
    for (int count = 0; count < 2; ++count) {
        engine().beginBreak(now());
        settle();
        EXPECT_EQ(happened(),
                  lines({"08:00:00 log break 20 s → ends 08:00",
                         "08:00:00 log error ScreenLock: CGSession is not present at the expected path"}));
        EXPECT_EQ(state(), "onBreak until 08:00:20");
    }
}

TEST_F(ScreenLockTest, TheLocksOwnSignalsPauseTheBreakAndBringItBack) {
    prefer("lockOnBreakStart", true);
    start();
    tickAt("08:20:00");
    forget();
    send(SystemSignal::sessionDidResignActive);
    send(SystemSignal::screenIsLocked);
    EXPECT_EQ(happened(), lines({"08:20:00 log paused (screenLocked, 0:20 left)"}));
    tickAt("08:30:00");
    send(SystemSignal::screenIsUnlocked);
    send(SystemSignal::sessionDidBecomeActive);
    settle();
    EXPECT_EQ(happened(),
              lines({"08:30:00 log system resume signal (screenLocked) clearing screenLocked pause",
                     "08:30:00 log resumed break (0:20 left)",
                     "08:30:00 record screenLocked pause from 08:20:00, 600 s, day 2026-03-09"}))
        << "and locks not again";
}

} // namespace
} // namespace kestrelfen
