#pragma once

#include "platform/linux/BusService.hpp"
#include "platform/linux/MergedFact.hpp"

namespace kestrelfen {

/// One desktop's screen saver, which also locks the screen. Main thread only; it never waits.
class ScreenSaverService {
  public:
    /// How a desktop names its screen saver.
    struct Desktop {
        const char* name;
        const char* path;
        /// Its Lock takes a text for those who come by.
        bool takesMessage;
    };

    /// All that are known, the general one last: where a desktop has its own, that one really locks.
    static constexpr Desktop desktops[] = {
        {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", false},
        {"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver", true},
        {"org.mate.ScreenSaver", "/org/mate/ScreenSaver", false},
        {"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver", false},
        {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", false},
    };

    ScreenSaverService(BusLink& sessionBus, const Desktop& desktop, MergedFact& isLocked);

    bool isPresent() const { return service_.isOwned(); }

    /// `answer` gets the service's reply or error.
    void lock(const BusLink::Answer& answer);

  private:
    void look();
    void miss();
    void hear(const QDBusMessage& signal);
    BusService::Method method(const char* name) const;

    const Desktop& desktop_;
    MergedFact::Source isLocked_;
    BusService service_;
};

} // namespace kestrelfen
