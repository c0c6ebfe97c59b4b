#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// A program with windows, as the person knows it.
struct RunningApplication {
    /// Names the product in the way of the built-in lists; absent when nothing tells it.
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> localizedName;
    std::int32_t processIdentifier = 0;

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

/// Which applications run, and which one the person works in. Main thread only. Answers are reads of memory
/// that signals keep up to date: they are asked on every tick.
class Applications {
  public:
    virtual ~Applications() = default;

    /// Those with an icon of their own in the system's list of tasks, in its order.
    virtual std::vector<RunningApplication> running() const = 0;

    /// Absent when none is in front, or this session cannot tell.
    virtual std::optional<RunningApplication> frontmost() const = 0;

    /// Whether an application of this identifier runs, be it without an icon of its own.
    virtual bool isRunning(std::string_view bundleIdentifier) const {
        const std::vector<RunningApplication> applications = running();
        return std::any_of(applications.begin(), applications.end(), [&](const RunningApplication& each) {
            return each.bundleIdentifier == bundleIdentifier;
        });
    }

    /// Whether this session can tell at all.
    virtual bool isAvailable() const = 0;

    /// Whether there may be others beside those that it tells of.
    virtual bool missesSome() const { return false; }

    /// Whether an application of this identifier is installed, running or not.
    virtual bool isInstalled(std::string_view bundleIdentifier) const = 0;

    /// Starts the application without bringing it to the front. Tells on the main queue when the system has
    /// taken the wish, or refused it.
    virtual void launchInBackground(std::string_view bundleIdentifier, std::function<void()> completion) = 0;
};

} // namespace kestrelfen
