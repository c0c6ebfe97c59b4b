#pragma once

#include "base/Observable.hpp"
#include "core/SmartPause.hpp"
#include "platform/ports/Log.hpp"
#include "sensing/AudioActivity.hpp"

#include <functional>
#include <optional>
#include <string>

namespace kestrelfen {

class Applications;
class AudioProcesses;
class Preferences;

/// Tells whether the person is in a call, watches video, captures the screen or is in a focus application.
/// One sample suffices to find so, and a lasting stretch of clear ones to find it ended. Without timer and
/// thread: main thread only.
class SmartPauseMonitor final : public SmartPause {
  public:
    SmartPauseMonitor(const Preferences& preferences, const Applications& applications,
                      const AudioProcesses& audioProcesses, Log& log);

    std::optional<SmartPauseKind> sample(Date now) override;
    bool hasSettled(Date now) const override;

    /// What the last sample found.
    std::optional<SmartPauseKind> activeKind() const { return activeKind_.get(); }
    /// The display name of the application behind `activeKind`.
    const std::optional<std::string>& activeAppName() const { return activeAppName_.get(); }
    /// Whether per-process audio answered at the last audio sample.
    bool audioProbeSupported() const { return audioProbeSupported_.get(); }

    /// Tells of every real change of these three.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    using Name = std::optional<std::string>;
    using Identifiers = std::vector<std::string>;

    void refreshAudioIfDue(Date now);
    std::optional<SmartPauseKind> detect();
    Name appBehind(SmartPauseKind kind) const;
    /// The first listed application among those whose audio of this kind runs.
    Name audioApp(const Identifiers& listed, const Identifiers& running) const;
    Name captureApp(const Identifiers& listed) const;
    Name frontmostName(const Identifiers& listed) const;
    std::string nameForBundleID(const std::string& bundleID) const;

    const Preferences& preferences_;
    const Applications& applications_;
    const AudioProcesses& audioProcesses_;
    Log& systemLog_;

    Observers changes_;
    Property<std::optional<SmartPauseKind>> activeKind_{changes_};
    Property<Name> activeAppName_{changes_};
    Property<bool> audioProbeSupported_{changes_, true};
    Logger log_;
    /// When the present clear stretch began.
    std::optional<Date> clearSince_;
    std::optional<Date> lastSampledAt_;
    AudioActivity lastActivity_;
};

} // namespace kestrelfen
