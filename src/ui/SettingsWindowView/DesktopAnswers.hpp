#pragma once

#include "platform/ports/OverlayReach.hpp"
#include "platform/ports/SystemSignals.hpp"

namespace kestrelfen {

struct Platform;

/// What this desktop offers now, as its ports answered.
struct DesktopAnswers {
    bool hasTray = false;
    bool hasNotifications = false;
    OverlayReach overlays = OverlayReach::everywhere;
    bool tellsInput = false;
    SystemSignals::Capabilities machine = {};
    bool canLock = false;
    bool tellsApplications = false;
    bool missesSomeApplications = false;
    bool tellsAudio = false;
    bool hasBrowserAccess = false;

    /// Costs what the ports' answers cost: reads of memory, and one question for the last input.
    static DesktopAnswers of(const Platform& platform, OverlayReach overlays);
};

} // namespace kestrelfen
