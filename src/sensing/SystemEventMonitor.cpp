#include "sensing/SystemEventMonitor.hpp"

#include <array>

namespace kestrelfen {

namespace {

struct Translation {
    SystemSignal signal;
    std::function<void(PauseReason)> SystemEvents::*callback;
    PauseReason reason;
};

/// A switch to another person's session and a locked screen are one thing here.
constexpr std::array<Translation, 8> translations{{
    {SystemSignal::willSleep, &SystemEvents::onPause, PauseReason::systemSleep},
    {SystemSignal::didWake, &SystemEvents::onResume, PauseReason::systemSleep},
    {SystemSignal::screensDidSleep, &SystemEvents::onPause, PauseReason::displaySleep},
    {SystemSignal::screensDidWake, &SystemEvents::onResume, PauseReason::displaySleep},
    {SystemSignal::sessionDidResignActive, &SystemEvents::onPause, PauseReason::screenLocked},
    {SystemSignal::sessionDidBecomeActive, &SystemEvents::onResume, PauseReason::screenLocked},
    {SystemSignal::screenIsLocked, &SystemEvents::onPause, PauseReason::screenLocked},
    {SystemSignal::screenIsUnlocked, &SystemEvents::onResume, PauseReason::screenLocked},
}};

} // namespace

void SystemEventMonitor::start() {
    if (!observations_.empty()) {
        return;
    }
    for (const Translation& translation : translations) {
        observations_.push_back(signals_.observe(translation.signal, [this, &translation] {
            if (const auto& callback = this->*translation.callback) {
                callback(translation.reason);
            }
        }));
    }
}

void SystemEventMonitor::stop() {
    observations_.clear();
}

} // namespace kestrelfen
