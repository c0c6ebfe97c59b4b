#include "sensing/Browser.hpp"

#include "core/Settings.hpp"
#include "platform/ports/Applications.hpp"

namespace kestrelfen {

namespace {

struct Facts {
    Browser browser;
    std::string_view bundleID;
    std::string_view settingsKey;
    std::string_view tabNoun;
};

constexpr std::array<Facts, 8> table{{
    {Browser::safari, "com.apple.Safari", "websiteStats.safari", "current tab"},
    {Browser::chrome, "com.google.Chrome", "websiteStats.chrome", "active tab"},
    {Browser::brave, "com.brave.Browser", "websiteStats.brave", "active tab"},
    {Browser::edge, "com.microsoft.edgemac", "websiteStats.edge", "active tab"},
    {Browser::arc, "company.thebrowser.Browser", "websiteStats.arc", "active tab"},
    {Browser::vivaldi, "com.vivaldi.Vivaldi", "websiteStats.vivaldi", "active tab"},
    {Browser::opera, "com.operasoftware.Opera", "websiteStats.opera", "active tab"},
    {Browser::comet, "ai.perplexity.comet", "websiteStats.comet", "active tab"},
}};

constexpr const Facts& facts(Browser browser) {
    return table[static_cast<std::size_t>(browser)];
}

constexpr bool isInCaseOrder() {
    for (const Browser browser : allCases<Browser>()) {
        if (facts(browser).browser != browser) {
            return false;
        }
    }
    return true;
}
static_assert(isInCaseOrder());

} // namespace

std::string_view bundleID(Browser browser) {
    return facts(browser).bundleID;
}

std::string_view displayName(Browser browser) {
    return label(browser);
}

std::string_view settingsKey(Browser browser) {
    return facts(browser).settingsKey;
}

std::string script(Browser browser) {
    std::string text = "tell application id \"";
    text += bundleID(browser);
    text += "\"\n    if (count of windows) is 0 then return \"\"\n    return URL of ";
    text += facts(browser).tabNoun;
    text += " of front window\nend tell";
    return text;
}

std::optional<Browser> matchingBrowser(std::string_view bundleIdentifier) {
    for (const Facts& each : table) {
        if (each.bundleID == bundleIdentifier) {
            return each.browser;
        }
    }
    return std::nullopt;
}

bool isInstalled(Browser browser, const Applications& applications) {
    return applications.isInstalled(bundleID(browser));
}

bool isEnabled(Browser browser, const Preferences& preferences) {
    return Settings::boolean(preferences, settingsKey(browser), false);
}

} // namespace kestrelfen
