#pragma once

#include "base/Date.hpp"
#include "base/Navigation.hpp"
#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"
#include "sensing/AppCategory.hpp"
#include "store/UsageSummaries.hpp"
#include "ui/DayRange.hpp"
#include "ui/LatestLoad.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class KestrelfenStore;

/// The sheet of all apps or websites of a range of days as it stands on the screen. Main thread only; what
/// the store has to answer comes later, and not at all once the sheet has gone or has begun to load anew.
class UsageDetail {
  public:
    /// How the sheet comes up.
    struct Opening {
        /// The first instant of the present day.
        Date dayStart;
        UsageSource source = UsageSource::apps;
        /// What is known of the present day already; shown until the first load has ended.
        std::vector<AppUsageSummary> apps;
        std::vector<WebsiteUsageSummary> websites;
    };

    /// `store` is null when history is unavailable.
    UsageDetail(const Platform& platform, KestrelfenStore* store, const Opening& opening);

    UsageSource source() const { return source_.get(); }
    DayRange range() const { return range_.get(); }
    /// Both load what they name, if the sheet has been loaded before.
    void setSource(UsageSource source);
    void setRange(DayRange range);

    /// Only apps of this category are listed; all, without one. Has no effect on websites.
    std::optional<AppCategory> category() const { return category_.get(); }
    void setCategory(std::optional<AppCategory> category) { category_.set(category); }

    /// Longest first.
    const std::vector<AppTotal>& totals() const { return totals_.get(); }
    const std::vector<WebsiteTotal>& sites() const { return sites_.get(); }
    bool hasLoaded() const { return hasLoaded_.get(); }
    const Preferences& preferences() const { return platform_.preferences; }

    /// Differs by the source and the range.
    std::string loadToken() const;
    /// When the sheet is first shown.
    void load();

    /// Files the app under that category for good.
    void assign(const std::string& bundleIdentifier, AppCategory category);
    /// Back to what is suggested.
    void resetCategory(const std::string& bundleIdentifier);

    /// Tells of every real change of all that can be read here, and of every change of an app's category.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    void loadIfChanged();

    const Platform platform_;
    KestrelfenStore* const store_;
    const Date dayStart_;
    Observers changes_;
    Property<UsageSource> source_;
    Property<DayRange> range_{changes_, DayRange::today};
    Property<std::optional<AppCategory>> category_{changes_};
    Property<std::vector<AppTotal>> totals_;
    Property<std::vector<WebsiteTotal>> sites_;
    Property<bool> hasLoaded_{changes_};
    /// The choice of a category is not otherwise told of.
    Property<std::int64_t> categoryRevision_{changes_};
    std::optional<std::string> loadedToken_;
    LatestLoad load_;
};

} // namespace kestrelfen
