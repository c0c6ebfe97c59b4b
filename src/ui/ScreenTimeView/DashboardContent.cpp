#include "ui/ScreenTimeView/DashboardContent.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "ui/ScreenTimeView/Dashboard.hpp"

namespace kestrelfen {

namespace {

constexpr std::string_view withoutStore =
    toTranslate("History is unavailable — the timer is still running, but nothing is being saved.");

HeroContent heroOf(const Dashboard& dashboard) {
    return HeroContent::of(dashboard.engine(), dashboard.timeFormat(),
                           {.longestStretch = dashboard.longestStretch(),
                            .activeSeconds = dashboard.activeSeconds(),
                            .pausedSeconds = dashboard.today().pausedSeconds,
                            .streak = dashboard.streak()});
}

UsageCardContent usageOf(const Dashboard& dashboard) {
    switch (dashboard.usageSource()) {
    case UsageSource::apps:
        return UsageCardContent::ofApps(dashboard.apps());
    case UsageSource::websites:
        return UsageCardContent::ofWebsites(dashboard.websites());
    }
    return {};
}

} // namespace

DashboardContent DashboardContent::of(const Dashboard& dashboard) {
    const ScreenTimeTargets targets = dashboard.targets();
    return {.banner = dashboard.hasStore() ? std::nullopt : std::optional(translated(withoutStore)),
            .hero = heroOf(dashboard),
            .week = WeekContent::of(dashboard.lastSevenDays(), targets, dashboard.hoveredDay(),
                                    dashboard.timeFormat()),
            .score =
                ScoreContent::of(dashboard.eyeScore(), targets, dashboard.engine().config().workInterval),
            .usage = usageOf(dashboard)};
}

} // namespace kestrelfen
