#pragma once

#include "core/Settings.hpp"
#include "face/settings/ViewOverMachine.hpp"
#include "platform/ports/TextFileWriter.hpp"
#include "sensing/BrowserScripting.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "shell/AppRouter.hpp"
#include "ui/SettingsWindowView/SettingsModel.hpp"

namespace kestrelfen {

/// Writes nothing.
class NoTextFileWriter final : public TextFileWriter {
  public:
    std::optional<std::string> write(const std::string& /*path*/, std::string_view /*text*/) override {
        return std::nullopt;
    }
};

/// The settings window over a machine by hand, without a history.
class SettingsViewTest : public ViewOverMachine {
  protected:
    void open(SettingsPane pane = SettingsPane::timing) {
        router.setSettingsPane(pane);
        model = std::make_unique<SettingsModel>(
            SettingsSources{engine(), monitor, scripting, nullptr, writer, router,
                            [](const std::string&, const SettingsSources::ChosenFile&) {},
                            [this] { ++settingsOpened; }, "1.0.0", "1", overlays},
            platform.ports());
        show(QStringLiteral("SettingsWindowView.qml"), *model, QSize(860, 600));
    }

    ~SettingsViewTest() override { view_.setSource(QUrl()); }

    /// Of the pane.
    QQuickItem* scrollArea() {
        for (QQuickItem* const child : view_.rootObject()->childItems()) {
            if (child->property("mostDown").isValid()) {
                return child;
            }
        }
        return nullptr;
    }

    bool boolean(const char* key) { return Settings::boolean(platform.preferences, key, false); }
    double real(const char* key) { return Settings::real(platform.preferences, key, -1); }

    NoTextFileWriter writer;
    AppRouter router;
    SmartPauseMonitor monitor{platform.preferences, platform.applications, platform.audioProcesses,
                              platform.log};
    BrowserScripting scripting{platform.ports()};
    int settingsOpened = 0;
    /// Absent for a pane without the list of what works.
    std::optional<OverlayReach> overlays;
    /// The browsers whose permission was asked for.
    std::vector<std::string> asked;
    std::unique_ptr<SettingsModel> model;
};

} // namespace kestrelfen
