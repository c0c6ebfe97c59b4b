#include "sensing/BrowserScripting.hpp"

#include "platform/ports/Applications.hpp"
#include "platform/ports/BrowserAccess.hpp"
#include "platform/ports/MainQueue.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr int launchLooks = 20;
constexpr double launchLookSeconds = 0.25;

AutomationPermission permission(std::optional<int> status) {
    if (!status) {
        return AutomationPermission::notDetermined;
    }
    // The system may answer with codes that have no name here.
    switch (*status) {
    case static_cast<int>(AutomationStatus::allowed):
        return AutomationPermission::granted;
    case static_cast<int>(AutomationStatus::notPermitted):
        return AutomationPermission::denied;
    case static_cast<int>(AutomationStatus::processNotFound):
        return AutomationPermission::notRunning;
    case static_cast<int>(AutomationStatus::wouldRequireConsent):
    default:
        return AutomationPermission::notDetermined;
    }
}

/// An undetermined permission lets the script run: the system itself may then ask the person.
bool allowsScript(AutomationPermission permission) {
    return permission == AutomationPermission::granted || permission == AutomationPermission::notDetermined;
}

} // namespace

AutomationPermission BrowserScripting::determinePermission(Browser browser, bool askUser) const {
    if (!isInstalled(browser, platform_.applications)) {
        return AutomationPermission::notInstalled;
    }
    return permission(platform_.browserAccess.permissionStatus(bundleID(browser), askUser));
}

BrowserScripting::FrontmostDomain BrowserScripting::frontmostDomain(Browser browser) const {
    if (!allowsScript(determinePermission(browser, false))) {
        return {};
    }
    const auto result = platform_.browserAccess.run(bundleID(browser), script(browser));
    if (!result) {
        return {};
    }
    if (std::holds_alternative<BrowserAccess::ScriptPending>(*result)) {
        return {std::nullopt, true};
    }
    if (const auto* const failure = std::get_if<BrowserAccess::ScriptFailure>(&*result)) {
        log_.debug(std::string(displayName(browser)) + " script failed: " + failure->description);
        return {};
    }
    const auto& address = std::get<std::optional<std::string>>(*result);
    return {address ? domain(*address) : std::nullopt};
}

void BrowserScripting::openAndRequestPermission(Browser browser, PermissionCompletion completion) {
    if (!isInstalled(browser, platform_.applications)) {
        completion(AutomationPermission::notInstalled);
        return;
    }
    if (platform_.applications.isRunning(bundleID(browser))) {
        requestPermissionOffMain(browser, completion);
        return;
    }
    platform_.browserAccess.prepareLaunch(lifeline_.guard(
        [this, browser, completion = std::move(completion)] { launch(browser, completion); }));
}

void BrowserScripting::launch(Browser browser, const PermissionCompletion& completion) {
    platform_.applications.launchInBackground(bundleID(browser), lifeline_.guard([this, browser, completion] {
        awaitRunning(browser, launchLooks, completion);
    }));
}

void BrowserScripting::awaitRunning(Browser browser, int looks, const PermissionCompletion& completion) {
    if (looks == 0 || platform_.applications.isRunning(bundleID(browser))) {
        requestPermissionOffMain(browser, completion);
        return;
    }
    platform_.mainQueue.postAfter(launchLookSeconds, lifeline_.guard([this, browser, looks, completion] {
        awaitRunning(browser, looks - 1, completion);
    }));
}

/// What determinePermission does, but that only the system's own question leaves the main thread: what is
/// installed is asked there alone, and this object may end while the person makes up their mind.
void BrowserScripting::requestPermissionOffMain(Browser browser, const PermissionCompletion& completion) {
    if (!isInstalled(browser, platform_.applications)) {
        completion(AutomationPermission::notInstalled);
        return;
    }
    platform_.browserAccess.askOffMain(
        [&access = platform_.browserAccess, browser] {
            return access.permissionStatus(bundleID(browser), true);
        },
        lifeline_.guard([completion](std::optional<int> status) { completion(permission(status)); }));
}

void BrowserScripting::releaseUnlessEnabled(const Preferences& preferences) const {
    constexpr auto browsers = allCases<Browser>();
    const auto isOn = [&](Browser browser) { return isEnabled(browser, preferences); };
    if (std::none_of(browsers.begin(), browsers.end(), isOn)) {
        platform_.browserAccess.release();
    }
}

} // namespace kestrelfen
