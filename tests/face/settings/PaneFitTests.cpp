#include "face/Pseudo.hpp"
#include "face/TextFit.hpp"
#include "face/settings/SettingsViewTest.hpp"
#include "ui/OnboardingView/OnboardingModel.hpp"

#include <QTest>

namespace kestrelfen {
namespace {

const char* const longName =
    "Quarterly Ledger and Invoice Reconciliation Workbench, Professional Edition for the "
    "Offices of Both Hemispheres";

/// The settings in a language that takes more room, at their smallest and as they are at first.
class PaneFitTest : protected Pseudo, public SettingsViewTest {
  protected:
    void expectFit(const std::string& what) {
        for (const QSize& size : {QSize(780, 520), QSize(860, 600)}) {
            view_.resize(size);
            settleView();
            QTest::qWait(20);
            const QStringList found = misfits(view_.contentItem(), {longName});
            EXPECT_TRUE(found.isEmpty()) << what << " at " << size.width() << ":\n"
                                         << found.join(QLatin1Char('\n')).toStdString();
        }
    }

    void showPane(SettingsPane pane) {
        router.setSettingsPane(pane);
        settleView();
    }

    void expectEveryPaneFits(const std::string& what) {
        for (const SettingsPane pane : allCases<SettingsPane>()) {
            showPane(pane);
            expectFit(std::string(rawValue(pane)) + what);
        }
    }
};

TEST_F(PaneFitTest, EveryPane) {
    start();
    open();
    expectEveryPaneFits("");
}

TEST_F(PaneFitTest, EveryPaneWithAllThatItMayTell) {
    platform.audioProcesses.setSupported(false);
    platform.loginItem.setFailure("no service");
    platform.browserAccess.setPermission("com.apple.Safari", FakeBrowserPermission::denied);
    for (const char* const key : {"pauseOnScreenLock", "pauseOnDisplaySleep", "pauseOnSystemSleep"}) {
        prefer(key, false);
    }
    prefer("websiteStats.safari", true);
    prefer("workIntervalSeconds", 600.0);
    prefer("preBreakWarningLeadSeconds", 600.0);
    prefer("longBreakDurationSeconds", 10.0);
    prefer("idleMode", std::string("off"));
    prefer("enforcementLevel", std::string("hardcore"));
    overlays = OverlayReach::ordinaryWindows;
    start();
    open();
    click(pseudo("Launch at login"));
    expectEveryPaneFits(" with notes");
}

TEST_F(PaneFitTest, PausingWithAThresholdOfItsOwn) {
    prefer("idleMode", std::string("custom"));
    start();
    open(SettingsPane::pausing);
    expectFit("custom");
}

TEST_F(PaneFitTest, SheetsOfTheLists) {
    platform.applications.start({"org.ledger", longName, 1}, 0);
    platform.applications.start({"org.editor", "Editor", 2}, 0);
    prefer("focusAppBundleIDs", PreferenceStrings{"org.ledger"});
    start();
    open(SettingsPane::smartPause);
    for (const char* const list :
         {"Meetings or Calls", "Video Playback", "Screen Recording or Sharing", "Deep Focus Apps"}) {
        click(QString::fromStdString(
            filled(PseudoCatalogue::inPseudo("Configure %1"), {PseudoCatalogue::inPseudo(list)})));
        ASSERT_TRUE(model->editor()) << list;
        expectFit(list);
        click(pseudo("Done"));
    }
}

/// The welcome in a language that takes more room.
class WelcomeFitTest : protected Pseudo, public ViewOverMachine {
  protected:
    ~WelcomeFitTest() override { view_.setSource(QUrl()); }

    void expectFit(const char* what) {
        for (const QSize& size : {QSize(900, 560), QSize(1040, 660)}) {
            view_.resize(size);
            settleView();
            QTest::qWait(20);
            const QStringList found = misfits(view_.contentItem());
            EXPECT_TRUE(found.isEmpty()) << what << " at " << size.width() << ":\n"
                                         << found.join(QLatin1Char('\n')).toStdString();
        }
    }

    OnboardingModel model{platform.ports(), [] {}};
};

TEST_F(WelcomeFitTest, BothPages) {
    platform.loginItem.setFailure("refused");
    show(QStringLiteral("OnboardingView.qml"), model, QSize(1040, 660));
    expectFit("welcome");
    click(pseudo("Set Up My Cadence"));
    expectFit("cadence");
    click(pseudo("Launch at login"));
    expectFit("cadence with an error");
}

} // namespace
} // namespace kestrelfen
