#pragma once

#include "ui/ScreenTimeView/HeroContent.hpp"
#include "ui/ScreenTimeView/ScoreContent.hpp"
#include "ui/ScreenTimeView/UsageCardContent.hpp"
#include "ui/ScreenTimeView/WeekContent.hpp"

#include <optional>
#include <string_view>

namespace kestrelfen {

class Dashboard;

/// Every text, number and flag of the dashboard at one moment.
struct DashboardContent {
    /// Only when history is unavailable.
    std::optional<std::string> banner;
    HeroContent hero;
    WeekContent week;
    ScoreContent score;
    UsageCardContent usage;

    static DashboardContent of(const Dashboard& dashboard);

    friend bool operator==(const DashboardContent&, const DashboardContent&) = default;
};

} // namespace kestrelfen
