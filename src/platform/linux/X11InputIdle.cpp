#include "platform/linux/X11InputIdle.hpp"

#include <xcb/xcbext.h>

#include <chrono>
#include <thread>

namespace kestrelfen {

namespace {

/// How long an answer is looked for without sleeping. A local server needs some tens of microseconds; to
/// sleep for it would be a wake-up on every tick.
constexpr std::chrono::microseconds patience{200};

constexpr double millisecondsPerSecond = 1000;

bool hasScreenSaver(const XConnection& connection) {
    const xcb_query_extension_reply_t* const extension =
        xcb_get_extension_data(connection.raw(), &xcb_screensaver_id);
    return extension && extension->present;
}

} // namespace

X11InputIdle::X11InputIdle(Log& log) : log_(log, "InputIdle") {
    if (connection_.isBroken()) {
        giveUp("no X server tells the time since the last input");
    } else if (!hasScreenSaver(connection_)) {
        giveUp("the X server does not count the time since the last input");
    }
}

std::optional<double> X11InputIdle::secondsSinceLastInput() {
    if (isAbsent_) {
        return std::nullopt;
    }
    const auto reply = ask();
    if (!reply) {
        giveUp("the X server no longer tells the time since the last input");
        return std::nullopt;
    }
    forgetEvents();
    return reply->ms_since_user_input / millisecondsPerSecond;
}

XPointer<xcb_screensaver_query_info_reply_t> X11InputIdle::ask() {
    xcb_connection_t* const raw = connection_.raw();
    const auto cookie = xcb_screensaver_query_info(raw, connection_.root());
    xcb_flush(raw);
    const auto deadline = std::chrono::steady_clock::now() + patience;
    do {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(raw, cookie.sequence, &reply, &error) != 0) {
            const XPointer<xcb_generic_error_t> unused(error);
            return XPointer<xcb_screensaver_query_info_reply_t>(
                static_cast<xcb_screensaver_query_info_reply_t*>(reply));
        }
        // Where the server shares this processor, it can answer only when it is given way.
        std::this_thread::yield();
    } while (std::chrono::steady_clock::now() < deadline);
    return XPointer<xcb_screensaver_query_info_reply_t>(
        xcb_screensaver_query_info_reply(raw, cookie, nullptr));
}

/// A change of the keyboard's layout is told to every connection, asked for or not.
void X11InputIdle::forgetEvents() {
    while (XPointer<xcb_generic_event_t>(xcb_poll_for_queued_event(connection_.raw()))) {
    }
}

void X11InputIdle::giveUp(std::string_view why) {
    isAbsent_ = true;
    log_.error(why);
}

} // namespace kestrelfen
