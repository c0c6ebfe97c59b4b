#include "sensing/ScreenLock.hpp"

namespace kestrelfen {

bool ScreenLock::lock() const {
    const SessionLockResult result = sessionLock_.lock();
    switch (result.outcome) {
    case SessionLockResult::Outcome::missing:
        log_.error("CGSession is not present at the expected path");
        return false;
    case SessionLockResult::Outcome::failed:
        log_.error("could not lock the screen: " + result.reason);
        return false;
    case SessionLockResult::Outcome::started:
        log_.info("screen locked at break start");
        return true;
    }
    return false;
}

} // namespace kestrelfen
