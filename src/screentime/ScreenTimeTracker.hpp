#pragma once

#include "base/Date.hpp"
#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "core/BreakState.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/Platform.hpp"
#include "screentime/DisplayLocator.hpp"
#include "screentime/DomainCache.hpp"
#include "screentime/SecondsTally.hpp"
#include "screentime/UsageBucket.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class KestrelfenStore;
struct RunningApplication;

/// Counts the seconds in which a person was really at the screen: for the day, and by application, display
/// and website. It is fed by the engine's tick, gathers in memory and hands to the store in batches. Main
/// thread only. Completions run on the main thread, and not at all once the tracker has ended.
class ScreenTimeTracker {
  public:
    /// The largest distance between two ticks that still counts, in seconds.
    static constexpr double maxCredibleGap = 5.0;
    /// Seconds between periodic flushes.
    static constexpr double flushInterval = 30.0;

    /// Called at the end of every flush that wrote, with the numbers of buckets and of websites.
    std::function<void(std::size_t buckets, std::size_t sites)> onFlushed;

    /// `store` is null when history is unavailable: the seconds then gather in memory alone.
    ScreenTimeTracker(const Platform& platform, KestrelfenStore* store,
                      const BrowserScripting& browserScripting, Date dayStart, Date now);

    /// Seconds of the current day, those not yet written included.
    double todayActiveSeconds() const { return todayActiveSeconds_.get(); }
    /// At the last tick that counted.
    const std::optional<std::string>& frontmostAppName() const { return frontmostAppName_.get(); }
    const std::vector<SecondsTally<UsageBucket>::Entry>& pending() const { return pending_.entries(); }
    const std::vector<SecondsTally<std::string>::Entry>& pendingWebsites() const {
        return pendingWebsites_.entries();
    }
    /// The day that flushes write into.
    Date dayStart() const { return dayStart_; }

    /// Tells of every real change of the day's seconds and of the frontmost application's name.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }
    [[nodiscard]] Subscription observeTodayActiveSeconds(std::function<void()> changed) {
        return todayActiveSeconds_.observe(std::move(changed));
    }
    [[nodiscard]] Subscription observeFrontmostAppName(std::function<void()> changed) {
        return frontmostAppName_.observe(std::move(changed));
    }

    /// Takes one tick of the engine, after the engine has applied it. `idleThreshold` is in seconds.
    void sample(Date now, const BreakState& state, double idleThreshold);

    /// Brings the day's stored total.
    void hydrate(std::function<void()> completion = {});

    /// Writes what is pending. Completes when this and every flush begun earlier have been written; it does
    /// not wait for later ones.
    void flush(std::function<void()> completion = {});

    /// Closes the day and begins the one that starts at `dayStart`.
    void handleRollover(Date dayStart, std::function<void()> completion = {});

  private:
    struct Batch;

    /// Done when the batches that were under way at its beginning are.
    struct Awaiting {
        std::size_t through;
        std::size_t batchesLeft;
        std::function<void()> completion;
    };

    bool shouldAccrue(const BreakState& state, double idleThreshold) const;
    bool isMainDisplayAwake() const;
    bool isInputRecent(double idleThreshold) const;
    void stopAccruing();
    void accrue(Date now);
    void noteFrontmost(const std::optional<RunningApplication>& application);
    void credit(const std::optional<RunningApplication>& application, double seconds, Date now);
    void noteBundleIdentifier(const std::string& bundleIdentifier);
    void flushIfDue(Date now);
    void startFlush();
    void writeNext(const std::shared_ptr<Batch>& batch);
    void finish(const Batch& batch);
    void completeFlushes();
    void beginDay(Date dayStart);

    const Platform platform_;
    KestrelfenStore* const store_;
    Observers changes_;
    Property<double> todayActiveSeconds_;
    Property<std::optional<std::string>> frontmostAppName_;
    Logger log_;
    const bool verboseLogging_;
    SecondsTally<UsageBucket> pending_;
    SecondsTally<std::string> pendingWebsites_;
    Date dayStart_;
    std::optional<Date> lastSampleAt_;
    Date lastFlushAt_;
    std::optional<std::string> lastBundleIdentifier_;
    DisplayLocator displayLocator_;
    DomainCache domainCache_;
    std::size_t batchesBegun_ = 0;
    std::size_t batchesUnderWay_ = 0;
    std::vector<Awaiting> awaiting_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
