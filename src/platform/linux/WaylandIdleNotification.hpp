#pragma once

#include "platform/linux/WaylandConnection.hpp"

#include <chrono>
#include <optional>
#include <wayland/ext-idle-notify-v1-client-protocol.h>
#include <wayland/kde-idle-client-protocol.h>

namespace kestrelfen {

/// Whether one seat is being used, as the compositor last told by one of its two idle protocols. Main thread
/// only.
class WaylandIdleNotification {
  public:
    /// The one of the two that the compositor offers; the other is null.
    struct Notifier {
        ext_idle_notifier_v1* standard = nullptr;
        org_kde_kwin_idle* kde = nullptr;
    };

    WaylandIdleNotification(const Notifier& notifier, wl_seat* seat);
    WaylandIdleNotification(const WaylandIdleNotification&) = delete;
    WaylandIdleNotification& operator=(const WaylandIdleNotification&) = delete;

    /// 0 while the seat is being used: within the compositor's time-out it tells no finer.
    double secondsSinceLastInput() const;

  private:
    static const ext_idle_notification_v1_listener standardListener;
    static const org_kde_kwin_idle_timeout_listener kdeListener;

    void becomeIdle();
    void resume() { lastInput_.reset(); }

    WaylandPointer<wl_seat> seat_;
    WaylandPointer<ext_idle_notification_v1> standard_;
    WaylandPointer<org_kde_kwin_idle_timeout> kde_;
    /// Absent while the seat is being used.
    std::optional<std::chrono::steady_clock::time_point> lastInput_;
};

} // namespace kestrelfen
