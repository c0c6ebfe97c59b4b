#include "platform/linux/MutterInputIdle.hpp"

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

constexpr char serviceName[] = "org.gnome.Mutter.IdleMonitor";
constexpr char interfaceName[] = "org.gnome.Mutter.IdleMonitor";
constexpr char corePath[] = "/org/gnome/Mutter/IdleMonitor/Core";

/// A little less than a second, or ticks of a second would miss every other one.
constexpr auto shortestInterval = 900ms;

/// Who was not asked for so long would tell of idleness that may long be over.
constexpr auto longestUse = 5s;

constexpr double millisecondsPerSecond = 1000;

} // namespace

MutterInputIdle::MutterInputIdle(BusLink& sessionBus)
    : service_(sessionBus, serviceName,
               {.appeared =
                    [this] {
                        forget();
                        askIfDue(std::chrono::steady_clock::now());
                    },
                .vanished = [this] { forget(); }}) {}

void MutterInputIdle::forget() {
    asked_.reset();
    isWaiting_ = false;
    answer_.reset();
}

std::optional<double> MutterInputIdle::secondsSinceLastInput() {
    const Moment now = std::chrono::steady_clock::now();
    askIfDue(now);
    if (!answer_ || now - answer_->moment > longestUse) {
        return std::nullopt;
    }
    return answer_->seconds + std::chrono::duration<double>(now - answer_->moment).count();
}

void MutterInputIdle::askIfDue(Moment now) {
    if (!service_.isOwned() || isWaiting_ || (asked_ && now - *asked_ < shortestInterval)) {
        return;
    }
    asked_ = now;
    isWaiting_ = true;
    service_.ask({corePath, interfaceName, "GetIdletime"}, {},
                 [this](const QDBusMessage& message) { take(message); });
}

void MutterInputIdle::take(const QDBusMessage& message) {
    isWaiting_ = false;
    const QVariant milliseconds = message.arguments().value(0);
    if (message.type() != QDBusMessage::ReplyMessage || milliseconds.userType() != QMetaType::ULongLong) {
        answer_.reset();
        return;
    }
    answer_ = Answer{std::chrono::steady_clock::now(),
                     static_cast<double>(milliseconds.toULongLong()) / millisecondsPerSecond};
}

} // namespace kestrelfen
