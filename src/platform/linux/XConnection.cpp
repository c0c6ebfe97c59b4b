#include "platform/linux/XConnection.hpp"

#include <QMetaObject>
#include <QSocketNotifier>

#include <cstdint>
#include <utility>

namespace kestrelfen {

namespace {

const xcb_screen_t* screenOf(xcb_connection_t* connection, int number) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; number > 0 && screens.rem > 1; --number) {
        xcb_screen_next(&screens);
    }
    return screens.data;
}

} // namespace

XConnection::XConnection() : connection_(xcb_connect(nullptr, &screenNumber_)) {
    if (!isBroken()) {
        screen_ = screenOf(connection_, screenNumber_);
    }
}

XConnection::~XConnection() {
    if (notifier_) {
        // It may be the one that is calling, so it must outlast this call.
        notifier_->setEnabled(false);
        notifier_->disconnect();
        notifier_->deleteLater();
    }
    xcb_disconnect(connection_);
}

bool XConnection::isBroken() const {
    return xcb_connection_has_error(connection_) != 0;
}

xcb_atom_t XConnection::atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void XConnection::listen(std::function<void(const xcb_generic_event_t&)> handle, std::function<void()> broken,
                         std::function<void()> rested) {
    handle_ = std::move(handle);
    broken_ = std::move(broken);
    rested_ = std::move(rested);
    notifier_ = new QSocketNotifier(xcb_get_file_descriptor(connection_), QSocketNotifier::Read);
    QObject::connect(notifier_, &QSocketNotifier::activated, notifier_, [this] { drain(); });
    flush();
}

void XConnection::flush() {
    xcb_flush(connection_);
    if (notifier_) {
        // Sending and waiting for replies read events too, and for those the socket
        // no longer calls.
        const auto drainIfAlive = [this, alive = std::weak_ptr<const char>(life_)] {
            if (!alive.expired()) {
                drain();
            }
        };
        QMetaObject::invokeMethod(notifier_, drainIfAlive, Qt::QueuedConnection);
    }
}

void XConnection::drain() {
    const std::weak_ptr<const char> alive = life_;
    const auto handle = handle_;
    while (const auto event = XPointer<xcb_generic_event_t>(xcb_poll_for_event(connection_))) {
        handle(*event);
        if (alive.expired()) {
            return;
        }
    }
    if (isBroken() && notifier_->isEnabled()) {
        notifier_->setEnabled(false);
        const auto broken = broken_;
        broken();
    } else if (const auto rested = rested_) {
        rested();
    }
}

} // namespace kestrelfen
