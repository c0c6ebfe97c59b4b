#include "screentime/ScreenTimeTracker.hpp"

#include "core/Settings.hpp"
#include "platform/ports/Applications.hpp"
#include "platform/ports/DisplayPower.hpp"
#include "platform/ports/InputIdle.hpp"
#include "platform/ports/MainQueue.hpp"

namespace kestrelfen {

namespace {

constexpr const char* unattributed = "Unattributed";

} // namespace

ScreenTimeTracker::ScreenTimeTracker(const Platform& platform, KestrelfenStore* store,
                                     const BrowserScripting& browserScripting, Date dayStart, Date now)
    : platform_(platform), store_(store), todayActiveSeconds_(changes_), frontmostAppName_(changes_),
      log_(platform.log, "ScreenTime"),
      verboseLogging_(Settings::boolean(platform.preferences, "debugFastCycle", false)), dayStart_(dayStart),
      lastFlushAt_(now), displayLocator_(platform.windowList, platform.displays),
      domainCache_(browserScripting, platform.preferences) {}

void ScreenTimeTracker::sample(Date now, const BreakState& state, double idleThreshold) {
    if (shouldAccrue(state, idleThreshold)) {
        accrue(now);
    } else {
        stopAccruing();
    }
}

bool ScreenTimeTracker::shouldAccrue(const BreakState& state, double idleThreshold) const {
    switch (state.phase()) {
    case BreakState::Case::onBreak:
    case BreakState::Case::idle:
        return false;
    case BreakState::Case::paused:
        if (isSmart(*state.reason())) {
            return isMainDisplayAwake();
        }
        return state.reason() == PauseReason::manual && isInputRecent(idleThreshold);
    case BreakState::Case::working:
    case BreakState::Case::preBreakWarning:
        return isInputRecent(idleThreshold);
    }
    return false;
}

bool ScreenTimeTracker::isMainDisplayAwake() const {
    return !platform_.displayPower.isMainDisplayAsleep();
}

bool ScreenTimeTracker::isInputRecent(double idleThreshold) const {
    if (!isMainDisplayAwake()) {
        return false;
    }
    // An age that nobody can tell never makes the person idle.
    const auto age = platform_.inputIdle.secondsSinceLastInput();
    return !age || *age <= idleThreshold;
}

void ScreenTimeTracker::stopAccruing() {
    if (lastSampleAt_) {
        lastSampleAt_.reset();
        startFlush();
    }
}

void ScreenTimeTracker::accrue(Date now) {
    const std::optional<RunningApplication> application = platform_.applications.frontmost();
    noteFrontmost(application);
    const double gap = lastSampleAt_ ? now - *lastSampleAt_ : 0;
    if (gap > 0 && gap <= maxCredibleGap) {
        credit(application, gap, now);
    }
    lastSampleAt_ = now;
    flushIfDue(now);
}

/// Compares before it copies: on most ticks nothing has changed.
void ScreenTimeTracker::noteFrontmost(const std::optional<RunningApplication>& application) {
    static const std::optional<std::string> none;
    const auto& name = application ? application->localizedName : none;
    if (name != frontmostAppName_.get()) {
        frontmostAppName_.set(name);
    }
}

void ScreenTimeTracker::credit(const std::optional<RunningApplication>& application, double seconds,
                               Date now) {
    UsageBucket bucket{"", unattributed, 0};
    if (application) {
        bucket.bundleIdentifier = application->bundleIdentifier.value_or("");
        bucket.displayName = application->localizedName.value_or(unattributed);
        bucket.displayID = displayLocator_.displayID(application->processIdentifier, now);
    }
    pending_.add(bucket, seconds);
    todayActiveSeconds_.set(todayActiveSeconds() + seconds);
    if (const auto* const domain = application ? domainCache_.currentDomain(*application, now) : nullptr) {
        pendingWebsites_.add(*domain, seconds);
    }
    noteBundleIdentifier(bucket.bundleIdentifier);
}

void ScreenTimeTracker::noteBundleIdentifier(const std::string& bundleIdentifier) {
    if (lastBundleIdentifier_ && *lastBundleIdentifier_ != bundleIdentifier) {
        startFlush();
    }
    lastBundleIdentifier_ = bundleIdentifier;
}

void ScreenTimeTracker::flushIfDue(Date now) {
    if (now - lastFlushAt_ >= flushInterval) {
        lastFlushAt_ = now;
        startFlush();
    }
}

void ScreenTimeTracker::startFlush() {
    platform_.mainQueue.post(lifeline_.guard([this] { flush(); }));
}

} // namespace kestrelfen
