#pragma once

#include "base/Navigation.hpp"
#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"
#include "screentime/EyeScore.hpp"
#include "screentime/Week.hpp"
#include "store/UsageSummaries.hpp"
#include "ui/LatestLoad.hpp"

#include <functional>
#include <optional>
#include <vector>

namespace kestrelfen {

class BreakEngine;
class KestrelfenStore;
class ScreenTimeTracker;

/// The dashboard as it stands on the screen: what it has loaded, what it shows of the present moment, and
/// what the person has chosen on it. Main thread only; what the store has to answer comes later, and not at
/// all once the dashboard has gone or has begun to load anew.
class Dashboard {
  public:
    /// How far back the streak looks, in calendar days.
    static constexpr int streakDays = 60;
    static constexpr std::int64_t usageLimit = 20;

    /// What outlives the dashboard. `store` is null when history is unavailable.
    struct Sources {
        const BreakEngine& engine;
        const ScreenTimeTracker& screenTime;
        KestrelfenStore* store;
        Navigation& navigation;
    };

    Dashboard(const Platform& platform, const Sources& sources) : platform_(platform), sources_(sources) {}

    const std::vector<AppUsageSummary>& apps() const { return apps_.get(); }
    const std::vector<WebsiteUsageSummary>& websites() const { return websites_.get(); }
    /// Today's, in seconds.
    double longestStretch() const { return longestStretch_.get(); }
    bool hasLoaded() const { return hasLoaded_.get(); }
    bool hasStore() const { return sources_.store != nullptr; }
    const BreakEngine& engine() const { return sources_.engine; }
    double activeSeconds() const;

    /// The day of the last tick: what is stored of it, or zeros.
    DaySummary today() const;
    std::int64_t streak() const;
    Week lastSevenDays() const;
    EyeScore eyeScore() const;
    ScreenTimeTargets targets() const { return ScreenTimeTargets::current(platform_.preferences); }
    const TimeFormat& timeFormat() const { return platform_.timeFormat; }

    /// The start of the day whose bar is under the pointer.
    std::optional<Date> hoveredDay() const { return hoveredDay_.get(); }
    void setHoveredDay(std::optional<Date> day) { hoveredDay_.set(day); }

    UsageSource usageSource() const { return usageSource_.get(); }
    void setUsageSource(UsageSource source) { usageSource_.set(source); }

    /// What the sheet over the dashboard lists, while it is up.
    bool isShowingDetail() const { return showingDetail_.get(); }
    UsageSource detailSource() const { return detailSource_.get(); }
    void seeAll();
    void closeDetail() { showingDetail_.set(false); }
    /// Opens the sheet that was asked for elsewhere, if any, and forgets the asking.
    void takePendingDetail();

    /// Differs after every break and every half minute of screen time.
    std::int64_t reloadToken() const;

    /// When the dashboard is first shown.
    void load();
    /// Loads anew once the token is another than at the last load.
    void loadIfChanged();

    /// Tells of every real change of what was loaded or chosen.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    Date startOfToday() const;
    void loadDays(Date today);
    void loadApps(Date today);
    void loadWebsites(Date today);
    void loadLongestStretch(Date today);

    const Platform platform_;
    const Sources sources_;
    Observers changes_;
    Property<std::vector<DaySummary>> storedDays_{changes_};
    Property<std::vector<AppUsageSummary>> apps_{changes_};
    Property<std::vector<WebsiteUsageSummary>> websites_{changes_};
    Property<double> longestStretch_{changes_};
    Property<bool> hasLoaded_{changes_};
    Property<std::optional<Date>> hoveredDay_{changes_};
    Property<UsageSource> usageSource_{changes_, UsageSource::apps};
    Property<bool> showingDetail_{changes_};
    Property<UsageSource> detailSource_{changes_, UsageSource::apps};
    std::optional<std::int64_t> loadedToken_;
    LatestLoad load_;
};

} // namespace kestrelfen
