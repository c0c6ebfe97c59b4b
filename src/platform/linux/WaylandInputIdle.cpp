#include "platform/linux/WaylandInputIdle.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

bool isSeat(const WaylandConnection::Global& global) {
    return global.interface == wl_seat_interface.name;
}

} // namespace

bool WaylandInputIdle::isOfferedBy(const WaylandConnection& connection) {
    return connection.offers(ext_idle_notifier_v1_interface.name) ||
           connection.offers(org_kde_kwin_idle_interface.name);
}

WaylandInputIdle::WaylandInputIdle(WaylandConnection& connection, Log& log)
    : log_(log, "InputIdle"), connection_(connection) {
    bindNotifier();
    update();
    subscription_ = connection.observe([this] { update(); });
}

void WaylandInputIdle::bindNotifier() {
    if (const auto* const standard = connection_.find(ext_idle_notifier_v1_interface.name)) {
        standard_.reset(connection_.bind<ext_idle_notifier_v1>(*standard, ext_idle_notifier_v1_interface, 1));
    } else if (const auto* const kde = connection_.find(org_kde_kwin_idle_interface.name)) {
        kde_.reset(connection_.bind<org_kde_kwin_idle>(*kde, org_kde_kwin_idle_interface, 1));
    }
}

void WaylandInputIdle::update() {
    if (connection_.isBroken()) {
        seats_.clear();
        log_.error("the compositor no longer tells the time since the last input");
        return;
    }
    if (standard_ || kde_) {
        removeLostSeats();
        addSeats();
    }
}

void WaylandInputIdle::addSeats() {
    for (const auto& global : connection_.globals()) {
        if (isSeat(global) && seats_.count(global.number) == 0) {
            seats_.try_emplace(global.number, Notifier{standard_.get(), kde_.get()},
                               connection_.bind<wl_seat>(global, wl_seat_interface, 1));
        }
    }
    connection_.flush();
}

void WaylandInputIdle::removeLostSeats() {
    const auto& globals = connection_.globals();
    std::erase_if(seats_, [&](const auto& seat) {
        return std::none_of(globals.begin(), globals.end(),
                            [&](const auto& global) { return global.number == seat.first; });
    });
}

std::optional<double> WaylandInputIdle::secondsSinceLastInput() {
    std::optional<double> seconds;
    for (const auto& [number, seat] : seats_) {
        const double ofSeat = seat.secondsSinceLastInput();
        seconds = seconds ? std::min(*seconds, ofSeat) : ofSeat;
    }
    return seconds;
}

} // namespace kestrelfen
