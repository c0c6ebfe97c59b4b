#pragma once

#include "platform/linux/MergedFact.hpp"
#include "platform/linux/XConnection.hpp"

#include <QSocketNotifier>
#include <QTimer>
#include <xcb/screensaver.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace kestrelfen {

/// Whether the X server has blanked the displays by its screen saver, or saves their power. Main thread only;
/// after the first look at what the server can do it never waits for it.
class X11DisplaySleep {
  public:
    /// The fact outlives this.
    explicit X11DisplaySleep(MergedFact& isAsleep);

    bool isKnown() const { return isBlanked_.value() || isSavingPower_.value(); }

  private:
    void start();
    void followScreenSaver();
    void askForPower();
    void read();
    void readEvents();
    void readScreenSaver();
    void readCapability();
    void readPower();
    void giveUp();

    MergedFact::Source isBlanked_;
    MergedFact::Source isSavingPower_;
    XConnection connection_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QTimer powerTimer_;
    std::uint8_t screenSaverEvent_ = 0;
    /// The questions that the server has not answered yet.
    std::optional<unsigned int> screenSaverQuestion_;
    std::optional<unsigned int> capabilityQuestion_;
    std::optional<unsigned int> powerQuestion_;
};

} // namespace kestrelfen
