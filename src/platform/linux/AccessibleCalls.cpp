#include "platform/linux/AccessibleCalls.hpp"

#include "platform/linux/AccessibilityBus.hpp"

#include <utility>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

constexpr auto longestRound = 500ms;

} // namespace

AccessibleCalls::AccessibleCalls(AccessibilityBus& bus, std::function<void()> late)
    : bus_(bus), late_(std::move(late)) {
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this, [this] {
        cancel();
        late_();
    });
}

void AccessibleCalls::ask(const QDBusMessage& question, BusLink::Answer take) {
    ++outstanding_;
    bus_.ask(question, this,
             [this, take = std::move(take), asked = cancellations_](const QDBusMessage& answer) {
                 if (asked != cancellations_) {
                     return;
                 }
                 take(answer);
                 if (asked == cancellations_ && --outstanding_ == 0) {
                     advance();
                 }
             });
}

void AccessibleCalls::then(std::function<void()> next) {
    next_ = std::move(next);
    if (outstanding_ == 0) {
        advance();
    } else {
        deadline_.start(longestRound);
    }
}

void AccessibleCalls::pause(std::chrono::milliseconds time, std::function<void()> next) {
    QTimer::singleShot(time, this, [next = std::move(next), asked = cancellations_, this] {
        if (asked == cancellations_) {
            next();
        }
    });
}

void AccessibleCalls::awaitBus(std::function<void()> next) {
    if (bus_.isConnected()) {
        next();
        return;
    }
    next_ = std::move(next);
    deadline_.start(longestRound);
    subscription_ = bus_.observe([this] {
        if (bus_.isConnected()) {
            subscription_.cancel();
            advance();
        }
    });
    bus_.open();
}

void AccessibleCalls::advance() {
    deadline_.stop();
    if (const auto next = std::exchange(next_, nullptr)) {
        next();
    }
}

void AccessibleCalls::cancel() {
    deadline_.stop();
    subscription_.cancel();
    next_ = nullptr;
    outstanding_ = 0;
    ++cancellations_;
}

} // namespace kestrelfen
