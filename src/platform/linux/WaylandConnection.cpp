#include "platform/linux/WaylandConnection.hpp"

#include <QDeadlineTimer>
#include <QSocketNotifier>
#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <poll.h>

namespace kestrelfen {

namespace {

/// How long a start may be held up by a compositor that does not answer.
constexpr std::chrono::milliseconds patience(1000);

} // namespace

const wl_registry_listener WaylandConnection::registryListener{
    .global =
        [](void* self, wl_registry*, std::uint32_t number, const char* interface, std::uint32_t version) {
            static_cast<WaylandConnection*>(self)->add(number, interface, version);
        },
    .global_remove = [](void* self, wl_registry*,
                        std::uint32_t number) { static_cast<WaylandConnection*>(self)->remove(number); },
};

const wl_callback_listener WaylandConnection::syncListener{
    .done = [](void* self, wl_callback*,
               std::uint32_t) { static_cast<WaylandConnection*>(self)->hasAnswered_ = true; },
};

WaylandConnection::WaylandConnection() {
    // Unasked, the library would look for a compositor under a name of its own choice.
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    display_ = name.isEmpty() ? nullptr : wl_display_connect(name.constData());
    if (!display_) {
        isBroken_ = true;
        return;
    }
    registry_ = wl_display_get_registry(display_);
    wl_registry_add_listener(registry_, &registryListener, this);
    settle();
    if (isBroken_) {
        return;
    }
    notifier_ = new QSocketNotifier(wl_display_get_fd(display_), QSocketNotifier::Read);
    QObject::connect(notifier_, &QSocketNotifier::activated, notifier_, [this] { drain(); });
}

WaylandConnection::~WaylandConnection() {
    delete notifier_;
    if (display_) {
        wl_registry_destroy(registry_);
        wl_display_disconnect(display_);
    }
}

void WaylandConnection::settle() {
    if (isBroken_) {
        return;
    }
    hasAnswered_ = false;
    const WaylandPointer<wl_callback> sync(wl_display_sync(display_));
    wl_callback_add_listener(sync.get(), &syncListener, this);
    const QDeadlineTimer deadline(patience);
    while (!hasAnswered_ && !isBroken_ && !deadline.hasExpired()) {
        readWithin(static_cast<int>(deadline.remainingTime()));
    }
    if (!hasAnswered_) {
        isBroken_ = true;
        globals_.clear();
    }
}

void WaylandConnection::readWithin(int milliseconds) {
    wl_display_flush(display_);
    pollfd socket{.fd = wl_display_get_fd(display_), .events = POLLIN, .revents = 0};
    if (::poll(&socket, 1, milliseconds) > 0) {
        dispatch();
    }
}

/// Reads what has come in, without waiting for more, and hands it out.
void WaylandConnection::dispatch() {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) {
            isBroken_ = true;
            return;
        }
    }
    if (wl_display_read_events(display_) < 0 || wl_display_dispatch_pending(display_) < 0) {
        isBroken_ = true;
    }
}

void WaylandConnection::drain() {
    dispatch();
    if (isBroken_) {
        lose();
    } else {
        flush();
    }
}

void WaylandConnection::lose() {
    notifier_->setEnabled(false);
    globals_.clear();
    observers_.notify();
}

const WaylandConnection::Global* WaylandConnection::find(std::string_view interface) const {
    const auto found = std::find_if(globals_.begin(), globals_.end(),
                                    [&](const Global& each) { return each.interface == interface; });
    return found == globals_.end() ? nullptr : &*found;
}

void WaylandConnection::flush() {
    if (!isBroken_) {
        wl_display_flush(display_);
    }
}

void WaylandConnection::add(std::uint32_t number, const char* interface, std::uint32_t version) {
    globals_.push_back({number, interface, version});
    observers_.notify();
}

void WaylandConnection::remove(std::uint32_t number) {
    globals_.erase(std::remove_if(globals_.begin(), globals_.end(),
                                  [number](const Global& each) { return each.number == number; }),
                   globals_.end());
    observers_.notify();
}

} // namespace kestrelfen
