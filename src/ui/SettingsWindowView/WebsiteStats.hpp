#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"
#include "platform/ports/Platform.hpp"
#include "sensing/AutomationPermission.hpp"
#include "sensing/Browser.hpp"

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace kestrelfen {

class BrowserScripting;

/// The browsers that the person may turn on, and the permission that each of them needs. Main thread only.
class WebsiteStats {
  public:
    WebsiteStats(const Platform& platform, BrowserScripting& scripting)
        : platform_(platform), scripting_(scripting) {}

    /// Those that are installed, in case order.
    std::vector<Browser> installed() const;

    bool isOn(Browser browser) const;
    /// As it was when it was last asked for.
    AutomationPermission permission(Browser browser) const;
    /// Whether the person is being asked about a browser: until that ends, no switch takes a click.
    bool isRequesting() const { return requesting_.get().has_value(); }

    /// Asks for the permissions anew, and nobody is asked. When the pane is shown.
    void reload();

    /// What the browser's switch does.
    void turn(Browser browser, bool on);

    /// Tells of every real change of the permissions and of the asking.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    using Permissions = std::map<Browser, AutomationPermission>;

    void request(Browser browser);
    void setPermission(Browser browser, AutomationPermission permission);

    const Platform platform_;
    BrowserScripting& scripting_;
    Observers changes_;
    Property<Permissions> permissions_{changes_};
    Property<std::optional<Browser>> requesting_{changes_};
    Lifeline lifeline_;
};

} // namespace kestrelfen
