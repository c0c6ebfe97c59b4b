#include "shell/desktop/KestrelfenAppPlatform.hpp"

#include "platform/linux/AutostartLoginItem.hpp"
#include "platform/linux/PortalLoginItem.hpp"
#include "platform/posix/AbsentApplications.hpp"
#include "platform/posix/AbsentWindowList.hpp"
#include "platform/posix/StandardFolders.hpp"

namespace kestrelfen {

KestrelfenAppPlatform::KestrelfenAppPlatform() {
    for (const auto& folder : preferences.folders()) {
        watches_.push_back(
            std::make_unique<DirectoryWatch>(folder, [this] { preferences.reloadIfChanged(); }));
    }
}

LinuxSession::Windows KestrelfenAppPlatform::orAbsent(LinuxSession::Windows windows) {
    if (!windows.applications || !windows.list) {
        return {std::make_unique<AbsentApplications>(), std::make_unique<AbsentWindowList>()};
    }
    return windows;
}

std::unique_ptr<LoginItem> KestrelfenAppPlatform::makeLoginItem() {
    std::error_code error;
    if (std::filesystem::exists("/.flatpak-info", error)) {
        return std::make_unique<PortalLoginItem>(portal, preferences);
    }
    return std::make_unique<AutostartLoginItem>(
        AutostartLoginItem::Places::ofThisSession(configurationFolder()), fileWriter);
}

std::unique_ptr<Displays> KestrelfenAppPlatform::orQt(std::unique_ptr<Displays> displays) {
    return displays ? std::move(displays) : std::make_unique<QtDisplays>();
}

Platform KestrelfenAppPlatform::ports() {
    return {.clock = clock,
            .calendar = calendar,
            .timeFormat = timeFormat,
            .mainQueue = mainQueue,
            .storeExecutor = storeExecutor,
            .ticker = ticker,
            .preferences = preferences,
            .inputIdle = *inputIdle,
            .systemSignals = systemSignals,
            .displays = *displays,
            .displayPower = displayPower,
            .applications = *windows.applications,
            .windowList = *windows.list,
            .audioProcesses = audioProcesses,
            .browserAccess = browserAccess,
            .programFocus = programFocus,
            .activationPolicy = activationPolicy,
            .interfaceAppearance = views,
            .notificationAuthorization = notificationAuthorization,
            .notifier = notifier,
            .sessionLock = sessionLock,
            .loginItem = *loginItem,
            .statusBarButton = statusItem,
            .standardOutput = output,
            .log = log};
}

void KestrelfenAppPlatform::openAccessibilitySettings() {
    for (const char* const entry :
         {"gnome-universal-access-panel", "kcm_access", "xfce4-accessibility-settings", "mate-at-properties",
          "cinnamon-settings-universal-access"}) {
        if (programs.isInstalled(entry)) {
            launcher.launch(entry, [] {});
            return;
        }
    }
    log.write(LogLevel::error, "Settings", "this desktop has no accessibility settings to open");
}

StoreConfiguration KestrelfenAppPlatform::storeConfiguration() const {
    StoreConfiguration configuration;
    configuration.file = dataFolder() / "kestrelfen" / StoreConfiguration::fileName;
    return configuration;
}

} // namespace kestrelfen
