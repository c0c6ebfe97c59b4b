#include "face/settings/SettingsViewTest.hpp"

#include <QGuiApplication>

namespace kestrelfen {
namespace {

TEST_F(SettingsViewTest, RailNamesThePanesAndChoosesThem) {
    open();
    for (const char* const text :
         {"Settings", "Timing", "Enforcement", "Smart Pause", "Pausing", "Website Stats", "Notifications",
          "Appearance", "About", "v1.0.0 (1)\napp.kestrelfen.Kestrelfen", "Work interval", "20 min"}) {
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

TEST_F(SettingsViewTest, BrowsersAreAskedOnlyWhenTheirPaneAppears) {
    const std::string safari = "com.apple.Safari";
    const char* const denied = "The desktop's accessibility support cannot be switched on";
    const char* const granted = "Allowed — reading the current domain";
    platform.browserAccess.setPermission(safari, FakeBrowserPermission::denied);
    platform.browserAccess.onPermission = [this](const std::string& bundleID) { asked.push_back(bundleID); };
    open();
    for (const SettingsPane pane : allCases<SettingsPane>()) {
        router.setSettingsPane(pane);
        settleView();
        EXPECT_EQ(asked.size(), pane < SettingsPane::websiteStats ? 0U : 1U) << rawValue(pane);
    }
    router.setSettingsPane(SettingsPane::websiteStats);
    settleView();
    EXPECT_EQ(asked, (std::vector<std::string>{safari, safari}));
    EXPECT_TRUE(shows(denied));
    platform.browserAccess.setPermission(safari, FakeBrowserPermission::granted);
    settleView();
    EXPECT_TRUE(shows(denied));
    click(QStringLiteral("About"));
    click(QStringLiteral("Website Stats"));
    EXPECT_TRUE(shows(granted));
}

TEST_F(SettingsViewTest, MarkStandsOverTheNameOfTheProgramAlone) {
    open();
    for (const SettingsPane pane : allCases<SettingsPane>()) {
        router.setSettingsPane(pane);
        settleView();
        EXPECT_EQ(countOf("MarkTile"), pane == SettingsPane::about ? 1 : 0) << rawValue(pane);
    }
}

TEST_F(SettingsViewTest, ClickBringsTheKeyboardToWhatItChooses) {
    open(SettingsPane::enforcement);
    for (const char* const chosen : {"Hardcore", "1 min", "Appearance", "Dark", "Timing"}) {
        click(QString::fromUtf8(chosen));
        EXPECT_EQ(focused(), QString::fromUtf8(chosen));
        EXPECT_FALSE(appearance_.isKeyboardInUse()) << chosen;
    }
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), QStringLiteral("Enforcement"));
    EXPECT_TRUE(appearance_.isKeyboardInUse());
}

TEST_F(SettingsViewTest, PaneBeginsAtItsTopHoweverFarTheLastOneWasScrolled) {
    open(SettingsPane::enforcement);
    view_.resize(780, 520);
    settleView();
    for (const char* const pane : {"Pausing", "Enforcement", "Notifications"}) {
        QQuickItem* const area = scrollArea();
        QMetaObject::invokeMethod(area, "scrollTo", Q_ARG(double, 1000));
        EXPECT_GT(area->property("offset").toDouble(), 0) << pane;
        click(QString::fromUtf8(pane));
        EXPECT_EQ(area->property("offset").toDouble(), 0) << pane;
    }
}

TEST_F(SettingsViewTest, ChangeInThePaneLeavesItWhereItWasScrolled) {
    open(SettingsPane::enforcement);
    view_.resize(780, 520);
    settleView();
    QQuickItem* const area = scrollArea();
    QMetaObject::invokeMethod(area, "scrollTo", Q_ARG(double, 100));
    prefer("showSkipButton", false);
    settleView();
    EXPECT_EQ(area->property("offset").toDouble(), 100);
}

TEST_F(SettingsViewTest, FromTheRightEverythingBeginsAtTheRight) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    open(SettingsPane::notifications);
    const double rail = 860 - 194 - 1;
    for (const char* const text : {"Settings", "Timing", "About"}) {
        EXPECT_GE(endOf(text), 860 - 20) << text;
    }
    for (const char* const text : {"Notifications & Data", "Preview", "Keep history for"}) {
        EXPECT_GT(endOf(text), rail - 28 - 17) << text;
        EXPECT_LT(endOf(text), rail - 27) << text;
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
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

TEST_F(SettingsViewTest, ChosenLevelIsWrittenInTheColourForTheAccent) {
    appearance_.setStyle(InterfaceStyle::dark);
    open(SettingsPane::enforcement);
    click(QStringLiteral("Hardcore"));
    EXPECT_EQ(colorOf(QStringLiteral("Hardcore")), QColor(0x04, 0x23, 0x1f));
    EXPECT_EQ(colorOf(QStringLiteral("No skips allowed")), QColor(0x04, 0x23, 0x1f));
    EXPECT_EQ(colorOf(QStringLiteral("Casual")), QColor(0xe9, 0xf2, 0xf3));
}

TEST_F(SettingsViewTest, ChosenModeIsOutlinedAndAChosenLevelFilled) {
    open(SettingsPane::appearance);
    EXPECT_EQ(countOf("kestrelfen::Outline"), 1);
    EXPECT_FALSE(named(QStringLiteral("System"))->property("isFilled").toBool());
    click(QStringLiteral("Enforcement"));
    click(QStringLiteral("Hardcore"));
    EXPECT_EQ(countOf("kestrelfen::Outline"), 0);
    EXPECT_TRUE(named(QStringLiteral("Hardcore"))->property("isFilled").toBool());
}

TEST_F(SettingsViewTest, CalloutIsInItsTintAndTheDisclosureIsNot) {
    for (const char* const key : {"pauseOnScreenLock", "pauseOnDisplaySleep", "pauseOnSystemSleep"}) {
        prefer(key, false);
    }
    prefer("idleMode", std::string("off"));
    open(SettingsPane::pausing);
    EXPECT_EQ(colorOf(QStringLiteral("Never pauses")), QColor(0xb4, 0x70, 0x1a));
    click(QStringLiteral("Website Stats"));
    EXPECT_EQ(colorOf(QStringLiteral("What This Reads")), QColor(0x0c, 0x1a, 0x20));
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

TEST_F(SettingsViewTest, AboutTellsWhatWorksAsItComesAndGoes) {
    overlays = OverlayReach::everywhere;
    platform.audioProcesses.setSupported(false);
    start();
    open(SettingsPane::about);
    const char* const fallback = "No sound server. Calls and video pause while their app is in front.";
    EXPECT_TRUE(shows("What works here"));
    EXPECT_TRUE(shows(fallback));
    named(QStringLiteral("Calls and video: Unavailable"));
    named(QStringLiteral("Tray icon: Works"));
    platform.audioProcesses.setSupported(true);
    pass(1.0);
    tick();
    settleView();
    EXPECT_FALSE(shows(fallback));
    named(QStringLiteral("Calls and video: Works"));
}

TEST_F(SettingsViewTest, AboutWithoutADesktopTellsNothingMore) {
    open(SettingsPane::about);
    EXPECT_FALSE(shows("What works here"));
    EXPECT_FALSE(shows("Tray icon"));
}

TEST_F(SettingsViewTest, WithoutAStoreTheHistoryIsLeftAlone) {
    open(SettingsPane::notifications);
    EXPECT_FALSE(named(QStringLiteral("Delete All History…"))->isEnabled());
    click(QStringLiteral("Delete All History…"));
    EXPECT_FALSE(shows("Delete Everything"));
}

} // namespace
} // namespace kestrelfen
