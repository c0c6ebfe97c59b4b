#pragma once

#include "base/Navigation.hpp"
#include "base/Observable.hpp"

namespace kestrelfen {

/// Where the windows are to stand, for the life of the program. Main thread only.
class AppRouter final : public Navigation {
  public:
    MainTab mainTab() const override { return mainTab_.get(); }
    void setMainTab(MainTab tab) override { mainTab_.set(tab); }
    SettingsPane settingsPane() const override { return settingsPane_.get(); }
    void setSettingsPane(SettingsPane pane) override { settingsPane_.set(pane); }
    std::optional<UsageSource> pendingUsageDetail() const override { return pendingUsageDetail_.get(); }
    void setPendingUsageDetail(std::optional<UsageSource> source) override {
        pendingUsageDetail_.set(source);
    }

    [[nodiscard]] Subscription observe(std::function<void()> changed) override {
        return changes_.add(std::move(changed));
    }

  private:
    Observers changes_;
    Property<MainTab> mainTab_{changes_, MainTab::screenTime};
    Property<SettingsPane> settingsPane_{changes_, SettingsPane::timing};
    Property<std::optional<UsageSource>> pendingUsageDetail_{changes_};
};

} // namespace kestrelfen
