#pragma once

#include "platform/linux/WaylandIdleNotification.hpp"
#include "platform/ports/InputIdle.hpp"
#include "platform/ports/Log.hpp"

#include <map>

namespace kestrelfen {

/// The time since the last input at any seat, as the compositor's idle protocol tells: 0 until nothing was
/// touched for two seconds. Programs that keep the screen awake, such as a film, look like input to it. Main
/// thread only; the connection outlives it. Once the compositor has gone it says so in the log and stays
/// absent.
class WaylandInputIdle final : public InputIdle {
  public:
    WaylandInputIdle(WaylandConnection& connection, Log& log);

    /// Whether the compositor has an idle protocol.
    static bool isOfferedBy(const WaylandConnection& connection);

    std::optional<double> secondsSinceLastInput() override;

  private:
    using Notifier = WaylandIdleNotification::Notifier;

    void bindNotifier();
    void update();
    void addSeats();
    void removeLostSeats();

    Logger log_;
    WaylandConnection& connection_;
    WaylandPointer<ext_idle_notifier_v1> standard_;
    WaylandPointer<org_kde_kwin_idle> kde_;
    /// By the numbers of the seats' globals.
    std::map<std::uint32_t, WaylandIdleNotification> seats_;
    Subscription subscription_;
};

} // namespace kestrelfen
