#pragma once

#include "base/Observable.hpp"
#include "platform/linux/BusLink.hpp"
#include "platform/linux/Login1Session.hpp"
#include "platform/linux/Login1Sleep.hpp"
#include "platform/linux/MergedFact.hpp"
#include "platform/linux/MutterDisplaySleep.hpp"
#include "platform/linux/ScreenSaverService.hpp"
#include "platform/linux/X11DisplaySleep.hpp"
#include "platform/ports/SystemSignals.hpp"

#include <array>
#include <memory>
#include <vector>

namespace kestrelfen {

/// What login1, the desktop's screen saver, the X server and GNOME's compositor tell of sleep, locks, user
/// switches and dark displays. Main thread only; nothing in it waits for any of them, and each may come, go
/// and come again.
class LinuxSystemSignals final : public SystemSignals {
  public:
    using ScreenSavers = std::vector<std::unique_ptr<ScreenSaverService>>;

    LinuxSystemSignals(BusLink& systemBus, BusLink& sessionBus);

    std::unique_ptr<Observation> observe(SystemSignal signal, std::function<void()> deliver) override;

    Capabilities capabilities() const override;

    /// False also while nothing is known.
    bool isLocked() const { return isLocked_.value().value_or(false); }
    bool areDisplaysAsleep() const { return areDisplaysAsleep_.value().value_or(false); }

    Login1Session& session() { return session_; }
    const ScreenSavers& screenSavers() const { return screenSavers_; }

  private:
    class Observing;

    MergedFact fact(SystemSignal whenTrue, SystemSignal whenFalse);

    std::array<Observers, EnumerationTable<SystemSignal>::rows.size()> observers_;
    MergedFact isAsleep_{fact(SystemSignal::willSleep, SystemSignal::didWake)};
    MergedFact areDisplaysAsleep_{fact(SystemSignal::screensDidSleep, SystemSignal::screensDidWake)};
    MergedFact isActive_{fact(SystemSignal::sessionDidBecomeActive, SystemSignal::sessionDidResignActive)};
    MergedFact isLocked_{fact(SystemSignal::screenIsLocked, SystemSignal::screenIsUnlocked)};
    MergedFact::Source sleep_{isAsleep_};
    MergedFact::Source active_{isActive_};
    MergedFact::Source lockedHint_{isLocked_};
    MergedFact::Source mutterAsleep_{areDisplaysAsleep_};
    Login1Sleep login1Sleep_;
    Login1Session session_;
    ScreenSavers screenSavers_;
    X11DisplaySleep x11_{areDisplaysAsleep_};
    MutterDisplaySleep mutter_;
};

} // namespace kestrelfen
