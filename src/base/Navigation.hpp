#pragma once

#include "base/Enumeration.hpp"
#include "base/Observable.hpp"

#include <optional>

namespace kestrelfen {

enum class MainTab { screenTime, breaks, tasks };

template <>
struct EnumerationTable<MainTab> {
    static constexpr std::array<EnumerationRow<MainTab>, 3> rows{{
        {MainTab::screenTime, "screenTime"},
        {MainTab::breaks, "breaks"},
        {MainTab::tasks, "tasks"},
    }};
};

/// In the order of the settings window's rail.
enum class SettingsPane {
    timing,
    enforcement,
    smartPause,
    pausing,
    websiteStats,
    notifications,
    appearance,
    about,
};

template <>
struct EnumerationTable<SettingsPane> {
    static constexpr std::array<EnumerationRow<SettingsPane>, 8> rows{{
        {SettingsPane::timing, "timing"},
        {SettingsPane::enforcement, "enforcement"},
        {SettingsPane::smartPause, "smartPause"},
        {SettingsPane::pausing, "pausing"},
        {SettingsPane::websiteStats, "websiteStats"},
        {SettingsPane::notifications, "notifications"},
        {SettingsPane::appearance, "appearance"},
        {SettingsPane::about, "about"},
    }};
};

/// What the usage detail lists.
enum class UsageSource { apps, websites };

template <>
struct EnumerationTable<UsageSource> {
    static constexpr std::array<EnumerationRow<UsageSource>, 2> rows{{
        {UsageSource::apps, "apps"},
        {UsageSource::websites, "websites"},
    }};
};

/// Where the windows are to stand. Main thread only.
class Navigation {
  public:
    virtual ~Navigation() = default;

    virtual MainTab mainTab() const = 0;
    virtual void setMainTab(MainTab tab) = 0;
    virtual SettingsPane settingsPane() const = 0;
    virtual void setSettingsPane(SettingsPane pane) = 0;
    /// Waits for the view that takes it, and sets it back to none.
    virtual std::optional<UsageSource> pendingUsageDetail() const = 0;
    virtual void setPendingUsageDetail(std::optional<UsageSource> source) = 0;

    /// Tells of every real change of these.
    [[nodiscard]] virtual Subscription observe(std::function<void()> changed) = 0;
};

} // namespace kestrelfen
