#include "ui/AppListEditor/AppListEditor.hpp"

#include "platform/ports/Applications.hpp"
#include "sensing/SmartPauseLists.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::string_view ownBundleID = "app.kestrelfen.mac";

bool holds(const std::vector<AppListEditor::App>& apps, std::string_view bundleID) {
    return std::any_of(apps.begin(), apps.end(),
                       [bundleID](const AppListEditor::App& app) { return app.bundleID == bundleID; });
}

void sortByName(std::vector<AppListEditor::App>& apps) {
    std::stable_sort(apps.begin(), apps.end(),
                     [](const auto& left, const auto& right) { return left.name < right.name; });
}

} // namespace

AppListEditor::AppListEditor(const Platform& platform, SmartPauseKind kind)
    : platform_(platform), kind_(kind) {
    reload();
}

bool AppListEditor::lists(std::string_view bundleID) const {
    return holds(ids(), bundleID);
}

bool AppListEditor::offers(std::string_view bundleID) const {
    return holds(runningChoices(), bundleID);
}

void AppListEditor::reload() {
    ids_.set(listed());
    runningChoices_.set(notListed());
}

std::vector<AppListEditor::App> AppListEditor::listed() const {
    std::vector<App> apps;
    for (const std::string& bundleID : SmartPauseLists::bundleIDs(kind_, platform_.preferences)) {
        apps.push_back({bundleID, displayName(bundleID)});
    }
    sortByName(apps);
    return apps;
}

std::vector<AppListEditor::App> AppListEditor::notListed() const {
    std::vector<App> apps;
    for (const RunningApplication& each : platform_.applications.running()) {
        const auto& bundleID = each.bundleIdentifier;
        if (bundleID && bundleID != ownBundleID && !lists(*bundleID) && !holds(apps, *bundleID)) {
            apps.push_back({*bundleID, each.localizedName.value_or(*bundleID)});
        }
    }
    sortByName(apps);
    return apps;
}

std::string AppListEditor::displayName(const std::string& bundleID) const {
    for (const RunningApplication& each : platform_.applications.running()) {
        if (each.bundleIdentifier == bundleID) {
            return each.localizedName.value_or(bundleID);
        }
    }
    return bundleID;
}

void AppListEditor::add(const std::string& bundleID) {
    auto bundleIDs = SmartPauseLists::bundleIDs(kind_, platform_.preferences);
    bundleIDs.push_back(bundleID);
    write(std::move(bundleIDs));
}

void AppListEditor::remove(const std::string& bundleID) {
    auto bundleIDs = SmartPauseLists::bundleIDs(kind_, platform_.preferences);
    std::erase(bundleIDs, bundleID);
    write(std::move(bundleIDs));
}

void AppListEditor::restoreDefaults() {
    write(SmartPauseLists::defaultBundleIDs(kind_));
}

void AppListEditor::write(std::vector<std::string> bundleIDs) {
    SmartPauseLists::setBundleIDs(kind_, platform_.preferences, std::move(bundleIDs));
    reload();
}

} // namespace kestrelfen
