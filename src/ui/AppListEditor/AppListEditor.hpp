#pragma once

#include "base/Observable.hpp"
#include "core/SmartPauseKind.hpp"
#include "platform/ports/Platform.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kestrelfen {

/// The list of applications of one kind of smart pause as it stands on the screen, and what its controls do.
/// Main thread only.
class AppListEditor {
  public:
    struct App {
        std::string bundleID;
        std::string name;

        friend bool operator==(const App&, const App&) = default;
    };

    /// Loads at once.
    AppListEditor(const Platform& platform, SmartPauseKind kind);

    SmartPauseKind kind() const { return kind_; }
    /// Those in the list, by name.
    const std::vector<App>& ids() const { return ids_.get(); }
    /// Those that run and could be added, by name.
    const std::vector<App>& runningChoices() const { return runningChoices_.get(); }

    bool lists(std::string_view bundleID) const;
    bool offers(std::string_view bundleID) const;

    void reload();
    void add(const std::string& bundleID);
    /// Every occurrence.
    void remove(const std::string& bundleID);
    void restoreDefaults();

    /// Tells of every real change of the two lists.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    std::vector<App> listed() const;
    std::vector<App> notListed() const;
    std::string displayName(const std::string& bundleID) const;
    void write(std::vector<std::string> bundleIDs);

    const Platform platform_;
    const SmartPauseKind kind_;
    Observers changes_;
    Property<std::vector<App>> ids_{changes_};
    Property<std::vector<App>> runningChoices_{changes_};
};

} // namespace kestrelfen
