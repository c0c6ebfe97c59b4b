#include "sensing/SmartPauseMonitor.hpp"

#include "platform/ports/Applications.hpp"
#include "platform/ports/AudioProcesses.hpp"
#include "sensing/SmartPauseLists.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

/// How long the samples must stay clear before a pause may end.
constexpr double clearHysteresis = 20.0;
/// Least time between two audio samples.
constexpr double sampleInterval = 5.0;

bool contains(const std::vector<std::string>& identifiers, const std::string& identifier) {
    return std::find(identifiers.begin(), identifiers.end(), identifier) != identifiers.end();
}

} // namespace

SmartPauseMonitor::SmartPauseMonitor(const Preferences& preferences, const Applications& applications,
                                     const AudioProcesses& audioProcesses, Log& log)
    : preferences_(preferences), applications_(applications), audioProcesses_(audioProcesses),
      systemLog_(log), log_(log, "SmartPause") {}

std::optional<SmartPauseKind> SmartPauseMonitor::sample(Date now) {
    refreshAudioIfDue(now);
    const auto detected = detect();
    if (detected != activeKind()) {
        log_.info("smart pause " + std::string(detected ? rawValue(*detected) : "clear"));
    }
    activeKind_.set(detected);
    if (detected) {
        clearSince_.reset();
    } else if (!clearSince_) {
        clearSince_ = now;
    }
    return detected;
}

bool SmartPauseMonitor::hasSettled(Date now) const {
    if (activeKind()) {
        return false;
    }
    return !clearSince_ || now - *clearSince_ >= clearHysteresis;
}

void SmartPauseMonitor::refreshAudioIfDue(Date now) {
    if (lastSampledAt_ && now - *lastSampledAt_ < sampleInterval) {
        return;
    }
    lastSampledAt_ = now;
    lastActivity_ = AudioActivity::current(audioProcesses_, systemLog_);
    audioProbeSupported_.set(lastActivity_.isSupported);
}

std::optional<SmartPauseKind> SmartPauseMonitor::detect() {
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        if (auto name = appBehind(kind)) {
            activeAppName_.set(std::move(name));
            return kind;
        }
    }
    activeAppName_.set(std::nullopt);
    return std::nullopt;
}

SmartPauseMonitor::Name SmartPauseMonitor::appBehind(SmartPauseKind kind) const {
    if (!SmartPauseLists::isEnabled(kind, preferences_)) {
        return std::nullopt;
    }
    const Identifiers& listed = SmartPauseLists::bundleIDs(kind, preferences_);
    if (listed.empty()) {
        return std::nullopt;
    }
    switch (kind) {
    case SmartPauseKind::meetings:
        return audioApp(listed, lastActivity_.usingInput);
    case SmartPauseKind::video:
        return audioApp(listed, lastActivity_.usingOutput);
    case SmartPauseKind::screenSharing:
        return captureApp(listed);
    case SmartPauseKind::focusApps:
        return frontmostName(listed);
    }
    return std::nullopt;
}

SmartPauseMonitor::Name SmartPauseMonitor::audioApp(const Identifiers& listed,
                                                    const Identifiers& running) const {
    if (!lastActivity_.isSupported) {
        return frontmostName(listed);
    }
    for (const std::string& bundleID : running) {
        if (contains(listed, bundleID)) {
            return nameForBundleID(bundleID);
        }
    }
    return std::nullopt;
}

SmartPauseMonitor::Name SmartPauseMonitor::captureApp(const Identifiers& listed) const {
    for (RunningApplication& application : applications_.running()) {
        if (application.bundleIdentifier && contains(listed, *application.bundleIdentifier)) {
            return std::move(application.localizedName);
        }
    }
    return std::nullopt;
}

SmartPauseMonitor::Name SmartPauseMonitor::frontmostName(const Identifiers& listed) const {
    auto application = applications_.frontmost();
    if (!application || !application->bundleIdentifier || !contains(listed, *application->bundleIdentifier)) {
        return std::nullopt;
    }
    return application->localizedName ? std::move(application->localizedName)
                                      : std::move(application->bundleIdentifier);
}

std::string SmartPauseMonitor::nameForBundleID(const std::string& bundleID) const {
    for (RunningApplication& application : applications_.running()) {
        if (application.bundleIdentifier == bundleID) {
            return std::move(application.localizedName).value_or(bundleID);
        }
    }
    return bundleID;
}

} // namespace kestrelfen
