#pragma once

#include "platform/fake/FakeApplications.hpp"

#include <utility>

namespace kestrelfen {

/// Words for a fake's applications, in which a test names them by their identifiers alone.
class ApplicationsAtHand {
  public:
    using Text = std::optional<std::string>;

    explicit ApplicationsAtHand(FakeApplications& applications) : applications_(applications) {}

    void start(Text bundleIdentifier, Text name) {
        applications_.start({std::move(bundleIdentifier), std::move(name), ++lastProcess_});
    }

    void stop(std::string_view bundleIdentifier) {
        for (const auto& started : std::vector(applications_.started())) {
            if (started.application.bundleIdentifier == bundleIdentifier) {
                applications_.stop(started.application.processIdentifier);
            }
        }
    }

    /// Starts it, too.
    void putInFront(Text bundleIdentifier, Text name) {
        start(std::move(bundleIdentifier), std::move(name));
        applications_.setFrontmost(lastProcess_);
    }

    void putNoneInFront() { applications_.setFrontmost(std::nullopt); }

  private:
    FakeApplications& applications_;
    std::int32_t lastProcess_ = 0;
};

} // namespace kestrelfen
