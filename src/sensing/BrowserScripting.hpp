#pragma once

#include "base/Lifeline.hpp"
#include "platform/ports/Log.hpp"
#include "platform/ports/Platform.hpp"
#include "sensing/AutomationPermission.hpp"
#include "sensing/Browser.hpp"

#include <functional>

namespace kestrelfen {

/// Asks browsers for the domain of the active tab, and for the permission to ask. It keeps no state and never
/// lets out more of an address than its domain. Main thread only.
class BrowserScripting {
  public:
    struct FrontmostDomain {
        std::optional<std::string> domain;
        /// The browser has not answered yet: ask again at the next occasion.
        bool isPending = false;
    };

    using PermissionCompletion = std::function<void(AutomationPermission)>;

    explicit BrowserScripting(const Platform& platform)
        : platform_(platform), log_(platform.log, "BrowserScripting") {}

    FrontmostDomain frontmostDomain(Browser browser) const;

    /// What an address is reduced to: the host in lower case, without a leading "www."; absent for anything
    /// but a web address.
    static std::optional<std::string> domain(std::string_view address);

    /// With `askUser` it may wait for the person's answer.
    AutomationPermission determinePermission(Browser browser, bool askUser) const;

    /// Starts the browser in the background if it does not run, waits for it up to five seconds, and asks the
    /// person. `completion` runs on the main thread, unless this object has ended by then.
    void openAndRequestPermission(Browser browser, PermissionCompletion completion);

    /// Lets go of what was turned on in order to read addresses, once no browser is turned on any more.
    void releaseUnlessEnabled(const Preferences& preferences) const;

  private:
    void launch(Browser browser, const PermissionCompletion& completion);
    void awaitRunning(Browser browser, int looks, const PermissionCompletion& completion);
    void requestPermissionOffMain(Browser browser, const PermissionCompletion& completion);

    const Platform platform_;
    Logger log_;
    Lifeline lifeline_;
};

} // namespace kestrelfen
