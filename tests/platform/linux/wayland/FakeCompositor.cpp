#include "FakeCompositor.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <wayland-server.h>
#include <wayland/ext-idle-notify-v1-server-protocol.h>

namespace kestrelfen {

namespace {

void destroy(wl_client*, wl_resource* resource) {
    wl_resource_destroy(resource);
}

FakeCompositor& compositorOf(wl_resource* resource) {
    return *static_cast<FakeCompositor*>(wl_resource_get_user_data(resource));
}

/// A seat's resource carries its number.
int numberOf(wl_resource* seat) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(wl_resource_get_user_data(seat)));
}

const struct ext_idle_notification_v1_interface notificationRequests { .destroy = destroy, };

void makeNotification(wl_client* client, wl_resource* notifier, std::uint32_t id, std::uint32_t timeout,
                      wl_resource* seat) {
    wl_resource* const resource = wl_resource_create(client, &ext_idle_notification_v1_interface, 1, id);
    wl_resource_set_implementation(resource, &notificationRequests, &compositorOf(notifier),
                                   [](wl_resource* gone) { compositorOf(gone).forget(gone); });
    compositorOf(notifier).notify(numberOf(seat), timeout, resource);
}

const struct ext_idle_notifier_v1_interface notifierRequests {
    .destroy = destroy, .get_idle_notification = makeNotification,
};

void bindNotifier(wl_client* client, void* compositor, std::uint32_t version, std::uint32_t id) {
    wl_resource* const resource =
        wl_resource_create(client, &ext_idle_notifier_v1_interface, static_cast<int>(version), id);
    wl_resource_set_implementation(resource, &notifierRequests, compositor, nullptr);
}

void bindSeat(wl_client* client, void* number, std::uint32_t version, std::uint32_t id) {
    wl_resource* const resource =
        wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
    wl_resource_set_implementation(resource, nullptr, number, nullptr);
}

} // namespace

FakeCompositor::Answering::Answering(FakeCompositor& compositor) : compositor_(compositor) {
    compositor_.notifier_->setEnabled(false);
    thread_ = std::thread([this] {
        while (!isOver_) {
            compositor_.serve(5);
        }
    });
}

FakeCompositor::Answering::~Answering() {
    isOver_ = true;
    thread_.join();
    compositor_.notifier_->setEnabled(true);
}

FakeCompositor::FakeCompositor(Idle idle)
    : display_(wl_display_create()), loop_(wl_display_get_event_loop(display_)) {
    EXPECT_EQ(wl_display_add_socket(display_, "fake"), 0);
    notifier_ = std::make_unique<QSocketNotifier>(wl_event_loop_get_fd(loop_), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { serve(0); });
    if (idle == Idle::told) {
        wl_global_create(display_, &ext_idle_notifier_v1_interface, 1, this, bindNotifier);
    }
}

FakeCompositor::~FakeCompositor() {
    stop();
    notifier_.reset();
    wl_display_destroy(display_);
}

void FakeCompositor::addSeat(int number) {
    void* const data = reinterpret_cast<void*>(static_cast<std::intptr_t>(number));
    seats_[number] = wl_global_create(display_, &wl_seat_interface, 1, data, bindSeat);
    flush();
}

void FakeCompositor::removeSeat(int number) {
    wl_global_destroy(seats_.at(number));
    seats_.erase(number);
    flush();
}

void FakeCompositor::tellIdled(int number) {
    ext_idle_notification_v1_send_idled(notifications_.at(number));
    flush();
}

void FakeCompositor::tellResumed(int number) {
    ext_idle_notification_v1_send_resumed(notifications_.at(number));
    flush();
}

void FakeCompositor::stop() {
    wl_display_destroy_clients(display_);
}

void FakeCompositor::notify(int seat, std::uint32_t timeout, wl_resource* notification) {
    timeout_ = timeout;
    notifications_[seat] = notification;
}

void FakeCompositor::forget(const wl_resource* notification) {
    std::erase_if(notifications_, [&](const auto& each) { return each.second == notification; });
}

void FakeCompositor::serve(int milliseconds) {
    wl_event_loop_dispatch(loop_, milliseconds);
    flush();
}

void FakeCompositor::flush() {
    wl_display_flush_clients(display_);
}

} // namespace kestrelfen
