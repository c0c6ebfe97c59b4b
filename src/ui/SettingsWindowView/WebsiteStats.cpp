#include "ui/SettingsWindowView/WebsiteStats.hpp"

#include "platform/ports/Preferences.hpp"
#include "sensing/BrowserScripting.hpp"

namespace kestrelfen {

std::vector<Browser> WebsiteStats::installed() const {
    std::vector<Browser> browsers;
    for (const Browser browser : allCases<Browser>()) {
        if (isInstalled(browser, platform_.applications)) {
            browsers.push_back(browser);
        }
    }
    return browsers;
}

bool WebsiteStats::isOn(Browser browser) const {
    return isEnabled(browser, platform_.preferences);
}

AutomationPermission WebsiteStats::permission(Browser browser) const {
    const auto found = permissions_.get().find(browser);
    return found == permissions_.get().end() ? AutomationPermission::notDetermined : found->second;
}

void WebsiteStats::reload() {
    Permissions permissions;
    for (const Browser browser : installed()) {
        permissions[browser] = scripting_.determinePermission(browser, false);
    }
    permissions_.set(std::move(permissions));
}

void WebsiteStats::turn(Browser browser, bool on) {
    if (isRequesting()) {
        return;
    }
    platform_.preferences.set(settingsKey(browser), on);
    if (!on) {
        scripting_.releaseUnlessEnabled(platform_.preferences);
    } else if (permission(browser) != AutomationPermission::granted) {
        request(browser);
    }
}

void WebsiteStats::request(Browser browser) {
    requesting_.set(browser);
    scripting_.openAndRequestPermission(browser,
                                        lifeline_.guard([this, browser](AutomationPermission permission) {
                                            setPermission(browser, permission);
                                            requesting_.set(std::nullopt);
                                        }));
}

void WebsiteStats::setPermission(Browser browser, AutomationPermission permission) {
    Permissions permissions = permissions_.get();
    permissions[browser] = permission;
    permissions_.set(std::move(permissions));
}

} // namespace kestrelfen
