#pragma once

#include "base/Navigation.hpp"
#include "base/Translated.hpp"
#include "store/UsageSummaries.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Every text and number of the dashboard's card of apps or websites at one moment.
struct UsageCardContent {
    static constexpr std::size_t rowLimit = 4;
    static constexpr std::string_view seeAll = toTranslate("See All");

    struct Row {
        std::string id;
        std::string name;
        double seconds = 0;
        std::string time;
        /// Of the longest, 0 to 1.
        double fraction = 0;

        friend bool operator==(const Row&, const Row&) = default;
    };

    UsageSource source = UsageSource::apps;
    std::string title;
    std::vector<Row> rows;
    /// Stands where there are no rows.
    std::optional<std::string> emptyNote;
    std::string footnote;

    static UsageCardContent ofApps(const std::vector<AppUsageSummary>& apps);
    static UsageCardContent ofWebsites(const std::vector<WebsiteUsageSummary>& websites);

    friend bool operator==(const UsageCardContent&, const UsageCardContent&) = default;
};

/// "By App".
std::string usageCardTitle(UsageSource source);

} // namespace kestrelfen
