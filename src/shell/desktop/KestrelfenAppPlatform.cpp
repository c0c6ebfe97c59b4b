#include "shell/desktop/KestrelfenAppPlatform.hpp"

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
            .displays = displays,
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
            .statusBarButton = statusItem,
            .standardOutput = output,
            .log = log};
}

StoreConfiguration KestrelfenAppPlatform::storeConfiguration() const {
    StoreConfiguration configuration;
    configuration.file = dataFolder() / "kestrelfen" / StoreConfiguration::fileName;
    return configuration;
}

} // namespace kestrelfen
