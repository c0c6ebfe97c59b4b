#include "platform/linux/WaylandIdleNotification.hpp"

namespace kestrelfen {

namespace {

/// Short, as what lies within it counts as use; not shorter, as each pause of that length wakes us twice.
constexpr std::chrono::milliseconds timeout(2000);

WaylandIdleNotification& of(void* self) {
    return *static_cast<WaylandIdleNotification*>(self);
}

} // namespace

const ext_idle_notification_v1_listener WaylandIdleNotification::standardListener{
    .idled = [](void* self, ext_idle_notification_v1*) { of(self).becomeIdle(); },
    .resumed = [](void* self, ext_idle_notification_v1*) { of(self).resume(); },
};

const org_kde_kwin_idle_timeout_listener WaylandIdleNotification::kdeListener{
    .idle = [](void* self, org_kde_kwin_idle_timeout*) { of(self).becomeIdle(); },
    .resumed = [](void* self, org_kde_kwin_idle_timeout*) { of(self).resume(); },
};

WaylandIdleNotification::WaylandIdleNotification(const Notifier& notifier, wl_seat* seat) : seat_(seat) {
    if (notifier.standard) {
        standard_.reset(ext_idle_notifier_v1_get_idle_notification(notifier.standard, timeout.count(), seat));
        ext_idle_notification_v1_add_listener(standard_.get(), &standardListener, this);
    } else {
        kde_.reset(org_kde_kwin_idle_get_idle_timeout(notifier.kde, seat, timeout.count()));
        org_kde_kwin_idle_timeout_add_listener(kde_.get(), &kdeListener, this);
    }
}

double WaylandIdleNotification::secondsSinceLastInput() const {
    if (!lastInput_) {
        return 0;
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - *lastInput_).count();
}

void WaylandIdleNotification::becomeIdle() {
    lastInput_ = std::chrono::steady_clock::now() - timeout;
}

} // namespace kestrelfen
