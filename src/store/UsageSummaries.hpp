#pragma once

#include <cstdint>
#include <string>

namespace kestrelfen {

/// One application on one display on one day. Durations are seconds.
struct AppUsageSummary {
    std::string bundleIdentifier;
    std::string displayName;
    std::int64_t displayID = 0;
    double activeSeconds = 0;

    std::string id() const { return bundleIdentifier + "#" + std::to_string(displayID); }
    friend bool operator==(const AppUsageSummary&, const AppUsageSummary&) = default;
};

/// One website on one day, named by its domain.
struct WebsiteUsageSummary {
    std::string domain;
    double activeSeconds = 0;

    friend bool operator==(const WebsiteUsageSummary&, const WebsiteUsageSummary&) = default;
};

/// One application over a range of days. `displayCount` tells on how many displays it was seen.
struct AppTotal {
    std::string bundleIdentifier;
    std::string displayName;
    double activeSeconds = 0;
    std::int64_t displayCount = 0;

    friend bool operator==(const AppTotal&, const AppTotal&) = default;
};

/// One website over a range of days. `dayCount` tells on how many of them it was seen.
struct WebsiteTotal {
    std::string domain;
    double activeSeconds = 0;
    std::int64_t dayCount = 0;

    friend bool operator==(const WebsiteTotal&, const WebsiteTotal&) = default;
};

} // namespace kestrelfen
