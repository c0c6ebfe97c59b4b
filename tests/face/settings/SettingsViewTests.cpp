#include "core/Settings.hpp"
#include "face/settings/ViewOverMachine.hpp"
#include "platform/ports/TextFileWriter.hpp"
#include "sensing/BrowserScripting.hpp"
#include "sensing/SmartPauseMonitor.hpp"
#include "shell/AppRouter.hpp"
#include "ui/SettingsWindowView/SettingsModel.hpp"

namespace kestrelfen {
namespace {

class NoTextFileWriter final : public TextFileWriter {
  public:
    std::optional<std::string> write(const std::string& /*path*/, std::string_view /*text*/) override {
        return std::nullopt;
    }
};

class SettingsViewTest : public ViewOverMachine {
  protected:
    void open(SettingsPane pane = SettingsPane::timing) {
        router.setSettingsPane(pane);
        model = std::make_unique<SettingsModel>(
            SettingsSources{engine(), monitor, scripting, nullptr, writer, router,
                            [](const std::string&, const SettingsSources::ChosenFile&) {},
                            [this] { ++settingsOpened; }, "1.0.0", "1"},
            platform.ports());
        show(QStringLiteral("SettingsWindowView.qml"), *model, QSize(860, 600));
    }

    ~SettingsViewTest() override { view_.setSource(QUrl()); }

    bool boolean(const char* key) { return Settings::boolean(platform.preferences, key, false); }
    double real(const char* key) { return Settings::real(platform.preferences, key, -1); }

    NoTextFileWriter writer;
    AppRouter router;
    SmartPauseMonitor monitor{platform.preferences, platform.applications, platform.audioProcesses,
                              platform.log};
    BrowserScripting scripting{platform.ports()};
    int settingsOpened = 0;
    std::unique_ptr<SettingsModel> model;
};

TEST_F(SettingsViewTest, RailNamesThePanesAndChoosesThem) {
    open();
    for (const char* const text :
         {"Settings", "Timing", "Enforcement", "Smart Pause", "Pausing", "Website Stats", "Notifications",
          "Appearance", "About", "v1.0.0 (1)\napp.kestrelfen.mac", "Work interval", "20 min"}) {
        EXPECT_TRUE(shows(text)) << text << " is not among\n" << texts().join('\n').toStdString();
    }
    click(QStringLiteral("Appearance"));
    EXPECT_EQ(router.settingsPane(), SettingsPane::appearance);
    EXPECT_TRUE(shows("Kestrelfen can follow the system or stay in one palette."));
    EXPECT_FALSE(shows("Work interval"));
}

TEST_F(SettingsViewTest, EveryPaneIsShownWithoutAComplaint) {
    platform.browserAccess.setPermission("com.apple.Safari", FakeBrowserPermission::denied);
    open();
    for (const SettingsPane pane : allCases<SettingsPane>()) {
        router.setSettingsPane(pane);
        settleView();
        EXPECT_TRUE(texts().contains(model->sentence())) << rawValue(pane);
    }
}

TEST_F(SettingsViewTest, StepperWritesAndShows) {
    open();
    click(QStringLiteral("Increase Work interval"));
    EXPECT_EQ(real("workIntervalSeconds"), 1260.0);
    EXPECT_TRUE(shows("21 min"));
    click(QStringLiteral("Decrease Long break every"));
    EXPECT_TRUE(shows("3 cycles"));
}

TEST_F(SettingsViewTest, ToggleKeepsTheKeyboardWhenItChanges) {
    open(SettingsPane::notifications);
    const QString label = QStringLiteral("Sound on break start");
    named(label)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_TRUE(boolean("soundOnBreakStart"));
    EXPECT_EQ(focused(), label);
    press(Qt::Key_Space);
    EXPECT_FALSE(boolean("soundOnBreakStart"));
    EXPECT_EQ(focused(), label);
}

TEST_F(SettingsViewTest, PillsAndCardsWrite) {
    open(SettingsPane::enforcement);
    click(QStringLiteral("Hardcore"));
    EXPECT_EQ(*platform.preferences.string("enforcementLevel"), "hardcore");
    EXPECT_TRUE(shows("No way out"));
    click(QStringLiteral("1 min"));
    EXPECT_EQ(real("snoozeDurationSeconds"), 60.0);
    router.setSettingsPane(SettingsPane::appearance);
    settleView();
    named(QStringLiteral("System"))->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(*platform.preferences.string("appearance"), "light");
    EXPECT_EQ(focused(), QStringLiteral("Light"));
}

TEST_F(SettingsViewTest, ChangeFromOutsideShows) {
    open();
    prefer("workIntervalSeconds", 600.0);
    prefer("preBreakWarningLeadSeconds", 600.0);
    settleView();
    EXPECT_EQ(texts().count(QStringLiteral("10 min")), 2);
    EXPECT_TRUE(shows("Must be shorter than the work interval"));
}

TEST_F(SettingsViewTest, FailedLoginItemIsTold) {
    platform.loginItem.setFailure("no service");
    open();
    click(QStringLiteral("Launch at login"));
    EXPECT_TRUE(shows("Couldn't update the login item: no service"));
    EXPECT_FALSE(named(QStringLiteral("Launch at login"))->property("isOn").toBool());
}

TEST_F(SettingsViewTest, CustomBringsUpTheThresholdAndKeepsItsRow) {
    open(SettingsPane::pausing);
    EXPECT_FALSE(shows("Idle after"));
    click(QStringLiteral("Custom"));
    EXPECT_TRUE(shows("Idle after"));
    EXPECT_EQ(real("idleThresholdSeconds"), 60.0);
    click(QStringLiteral("Off"));
    EXPECT_FALSE(shows("Idle after"));
}

TEST_F(SettingsViewTest, AppListIsEditedInItsSheet) {
    platform.applications.start({"org.editor", "Editor", 1}, 0);
    open(SettingsPane::smartPause);
    click(QStringLiteral("Configure Deep Focus Apps"));
    EXPECT_TRUE(shows("No apps yet."));
    click(QStringLiteral("Add Editor"));
    EXPECT_EQ(*platform.preferences.strings("focusAppBundleIDs"), PreferenceStrings{"org.editor"});
    EXPECT_TRUE(shows("Everything running is already listed."));
    click(QStringLiteral("Remove Editor"));
    EXPECT_EQ(*platform.preferences.strings("focusAppBundleIDs"), PreferenceStrings{});
    click(QStringLiteral("Done"));
    EXPECT_EQ(model->editor(), nullptr);
    EXPECT_FALSE(shows("No apps yet."));
}

TEST_F(SettingsViewTest, DeniedBrowserLeadsToTheSystemsSettings) {
    platform.browserAccess.setPermission("com.apple.Safari", FakeBrowserPermission::denied);
    prefer("websiteStats.safari", true);
    open(SettingsPane::websiteStats);
    click(QStringLiteral("Open Settings Safari"));
    EXPECT_EQ(settingsOpened, 1);
    click(QStringLiteral("Safari"));
    EXPECT_FALSE(boolean("websiteStats.safari"));
    EXPECT_FALSE(shows("Open Settings"));
}

TEST_F(SettingsViewTest, WithoutAStoreTheHistoryIsLeftAlone) {
    open(SettingsPane::notifications);
    EXPECT_FALSE(named(QStringLiteral("Delete All History…"))->isEnabled());
    click(QStringLiteral("Delete All History…"));
    EXPECT_FALSE(shows("Delete Everything"));
}

} // namespace
} // namespace kestrelfen
