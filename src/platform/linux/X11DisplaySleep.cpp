#include "platform/linux/X11DisplaySleep.hpp"

#include <xcb/dpms.h>
#include <xcb/xcbext.h>

#include <chrono>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

/// The server tells of a change of power by no event that its older versions know.
constexpr auto powerInterval = 2s;

constexpr std::uint8_t eventTypeMask = 0x7f;

const xcb_query_extension_reply_t* extension(const XConnection& connection, xcb_extension_t& which) {
    const xcb_query_extension_reply_t* const data = xcb_get_extension_data(connection.raw(), &which);
    return data && data->present ? data : nullptr;
}

/// The reply to `question`, if it is there; the question then waits no longer.
template <typename Reply>
XPointer<Reply> takeReply(const XConnection& connection, std::optional<unsigned int>& question) {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (!question || xcb_poll_for_reply(connection.raw(), *question, &reply, &error) == 0) {
        return nullptr;
    }
    question.reset();
    const XPointer<xcb_generic_error_t> unused(error);
    return XPointer<Reply>(static_cast<Reply*>(reply));
}

} // namespace

X11DisplaySleep::X11DisplaySleep(MergedFact& isAsleep) : isBlanked_(isAsleep), isSavingPower_(isAsleep) {
    if (!connection_.isBroken()) {
        start();
    }
}

void X11DisplaySleep::start() {
    xcb_prefetch_extension_data(connection_.raw(), &xcb_screensaver_id);
    xcb_prefetch_extension_data(connection_.raw(), &xcb_dpms_id);
    notifier_ =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.raw()), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { read(); });
    if (const auto* const data = extension(connection_, xcb_screensaver_id)) {
        screenSaverEvent_ = static_cast<std::uint8_t>(data->first_event + XCB_SCREENSAVER_NOTIFY);
        followScreenSaver();
    }
    if (extension(connection_, xcb_dpms_id)) {
        capabilityQuestion_ = xcb_dpms_capable(connection_.raw()).sequence;
    }
    xcb_flush(connection_.raw());
}

void X11DisplaySleep::followScreenSaver() {
    xcb_screensaver_select_input(connection_.raw(), connection_.root(), XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    screenSaverQuestion_ = xcb_screensaver_query_info(connection_.raw(), connection_.root()).sequence;
}

void X11DisplaySleep::askForPower() {
    if (!powerQuestion_) {
        powerQuestion_ = xcb_dpms_info(connection_.raw()).sequence;
        xcb_flush(connection_.raw());
    }
}

void X11DisplaySleep::read() {
    readEvents();
    readScreenSaver();
    readCapability();
    readPower();
    if (connection_.isBroken()) {
        giveUp();
    }
}

void X11DisplaySleep::readEvents() {
    while (const auto event = XPointer<xcb_generic_event_t>(xcb_poll_for_event(connection_.raw()))) {
        if ((event->response_type & eventTypeMask) != screenSaverEvent_ || screenSaverEvent_ == 0) {
            continue;
        }
        const auto state = reinterpret_cast<const xcb_screensaver_notify_event_t&>(*event).state;
        if (state == XCB_SCREENSAVER_STATE_ON || state == XCB_SCREENSAVER_STATE_OFF) {
            isBlanked_.change(state == XCB_SCREENSAVER_STATE_ON);
        }
    }
}

void X11DisplaySleep::readScreenSaver() {
    const auto reply = takeReply<xcb_screensaver_query_info_reply_t>(connection_, screenSaverQuestion_);
    if (reply) {
        isBlanked_.look(reply->state == XCB_SCREENSAVER_STATE_ON, true);
    }
}

void X11DisplaySleep::readCapability() {
    const auto reply = takeReply<xcb_dpms_capable_reply_t>(connection_, capabilityQuestion_);
    if (reply && reply->capable) {
        powerTimer_.setTimerType(Qt::VeryCoarseTimer);
        powerTimer_.callOnTimeout([this] { askForPower(); });
        powerTimer_.start(powerInterval);
        askForPower();
    }
}

void X11DisplaySleep::readPower() {
    const auto reply = takeReply<xcb_dpms_info_reply_t>(connection_, powerQuestion_);
    if (reply) {
        const bool isStart = !isSavingPower_.value().has_value();
        isSavingPower_.look(reply->power_level != XCB_DPMS_DPMS_MODE_ON, isStart);
    }
}

void X11DisplaySleep::giveUp() {
    notifier_->setEnabled(false);
    powerTimer_.stop();
    isBlanked_.fallSilent();
    isSavingPower_.fallSilent();
}

} // namespace kestrelfen
