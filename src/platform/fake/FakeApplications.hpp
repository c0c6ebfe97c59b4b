#pragma once

#include "platform/ports/Applications.hpp"

#include <functional>
#include <set>

namespace kestrelfen {

/// Applications by hand; at first none runs and none is in front. Each may have one normal window.
class FakeApplications final : public Applications {
  public:
    struct Started {
        RunningApplication application;
        /// Where its window lies; 0 where it has none.
        std::int64_t display = 0;
    };

    /// Hears of every launch. By default, and while `launchesFail` is false, a launched application runs from
    /// then on, without an icon.
    std::function<void(const std::string& bundleIdentifier)> onLaunch;
    bool launchesFail = false;

    /// Starts it behind those that run. Nothing happens when that process runs already.
    void start(RunningApplication application, std::int64_t display = 0);
    /// Moves its window, or opens one; 0 closes it.
    void move(std::int32_t processIdentifier, std::int64_t display);
    /// It is no longer in front, either.
    void stop(std::int32_t processIdentifier);
    /// An absent or unknown process means that none is in front.
    void setFrontmost(std::optional<std::int32_t> processIdentifier);
    /// For an application that runs without an icon.
    void setRunningUnseen(const std::string& bundleIdentifier, bool running);
    void setInstalled(const std::string& bundleIdentifier, bool installed);
    void setAvailable(bool available) { isAvailable_ = available; }
    void setMissesSome(bool missesSome) { missesSome_ = missesSome; }

    bool has(std::int32_t processIdentifier) const;
    /// In the order of starting.
    const std::vector<Started>& started() const { return started_; }

    std::vector<RunningApplication> running() const override;
    std::optional<RunningApplication> frontmost() const override;
    bool isRunning(std::string_view bundleIdentifier) const override;
    bool isAvailable() const override { return isAvailable_; }
    bool missesSome() const override { return missesSome_; }
    bool isInstalled(std::string_view bundleIdentifier) const override;
    void launchInBackground(std::string_view bundleIdentifier, std::function<void()> completion) override;

  private:
    using Identifiers = std::set<std::string, std::less<>>;

    const Started* find(std::int32_t processIdentifier) const;

    std::vector<Started> started_;
    std::optional<std::int32_t> frontmost_;
    Identifiers runningUnseen_;
    Identifiers installed_;
    bool isAvailable_ = true;
    bool missesSome_ = false;
};

} // namespace kestrelfen
