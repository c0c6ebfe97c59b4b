#include "shell/desktop/SceneFaces.hpp"

#include "base/Translated.hpp"
#include "platform/ports/SaveDialog.hpp"
#include "shell/AppDelegate.hpp"
#include "shell/desktop/QuickSceneWindows.hpp"
#include "ui/MainWindowView/MainWindowModel.hpp"
#include "ui/OnboardingView/OnboardingModel.hpp"
#include "ui/SettingsWindowView/SettingsModel.hpp"

namespace kestrelfen {

namespace {

constexpr QSize mainSize(1040, 660);
constexpr QSize smallestMainSize(900, 560);
constexpr QSize settingsSize(860, 600);
constexpr QSize smallestSettingsSize(780, 520);

std::unique_ptr<QObject> makeMainModel(QuickSceneWindows& windows, AppDelegate& delegate,
                                       const Platform& platform) {
    const MainWindowSources sources{delegate.engine(), delegate.screenTime(), delegate.store(),
                                    delegate.router(), windows};
    return std::make_unique<MainWindowModel>(sources, platform, [&delegate, platform] {
        return std::make_unique<OnboardingModel>(platform, [&delegate] { delegate.finishOnboarding(); });
    });
}

std::unique_ptr<QObject> makeSettingsModel(AppDelegate& delegate, const SceneServices& services) {
    SettingsSources sources{
        .engine = delegate.engine(),
        .smartPause = delegate.smartPause(),
        .browserScripting = delegate.browserScripting(),
        .store = delegate.store(),
        .fileWriter = services.fileWriter,
        .navigation = delegate.router(),
        .chooseFile =
            [&dialog = services.saveDialog](const std::string& name, SettingsSources::ChosenFile chosen) {
                dialog.ask(name, std::move(chosen));
            },
        .openAutomationSettings = services.openAutomationSettings,
        .appVersion = KESTRELFEN_VERSION,
        .buildNumber = KESTRELFEN_BUILD,
        .overlays = services.overlays,
    };
    return std::make_unique<SettingsModel>(std::move(sources), services.platform);
}

} // namespace

void setSceneFaces(QuickSceneWindows& windows, AppDelegate& delegate, const SceneServices& services) {
    windows.setFace(Scene::main,
                    {QStringLiteral("MainWindowView.qml"), QStringLiteral("Kestrelfen"), mainSize,
                     smallestMainSize, [&windows, &delegate, platform = services.platform] {
                         return makeMainModel(windows, delegate, platform);
                     }});
    windows.setFace(Scene::settings,
                    {QStringLiteral("SettingsWindowView.qml"), QString::fromStdString(translated("Settings")),
                     settingsSize, smallestSettingsSize,
                     [&delegate, services] { return makeSettingsModel(delegate, services); }});
}

} // namespace kestrelfen
