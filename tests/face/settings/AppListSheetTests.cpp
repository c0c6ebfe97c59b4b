#include "face/settings/SettingsViewTest.hpp"

#include <QTest>

namespace kestrelfen {
namespace {

class AppListSheetTest : public SettingsViewTest {
  protected:
    void runs(const std::string& bundleID, const std::string& name) {
        platform.applications.start({bundleID, name, ++lastProcess}, 0);
    }
    void list(PreferenceStrings bundleIDs) { prefer("focusAppBundleIDs", std::move(bundleIDs)); }
    const PreferenceStrings& stored() { return *platform.preferences.strings("focusAppBundleIDs"); }

    void openSheet() {
        open(SettingsPane::smartPause);
        click(QStringLiteral("Configure Deep Focus Apps"));
    }
    void pressAt(const QString& spokenLabel) {
        named(spokenLabel)->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Space);
    }
    /// From the window of another program.
    void comeBack() {
        QWindow other;
        for (QWindow* const window : {&other, static_cast<QWindow*>(&view_)}) {
            window->show();
            window->requestActivate();
            ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        }
        settleView();
    }

    std::int32_t lastProcess = 0;
};

TEST_F(AppListSheetTest, IsEdited) {
    runs("org.editor", "Editor");
    openSheet();
    EXPECT_TRUE(shows("No apps yet."));
    click(QStringLiteral("Add Editor"));
    EXPECT_EQ(stored(), PreferenceStrings{"org.editor"});
    EXPECT_TRUE(shows("Everything running is already listed."));
    click(QStringLiteral("Remove Editor"));
    EXPECT_EQ(stored(), PreferenceStrings{});
    click(QStringLiteral("Done"));
    EXPECT_EQ(model->editor(), nullptr);
    EXPECT_FALSE(shows("No apps yet."));
}

TEST_F(AppListSheetTest, NamesItsButtons) {
    openSheet();
    for (const char* const text : {"Deep Focus Apps", "Add a running app", "Restore Defaults", "Done"}) {
        EXPECT_TRUE(shows(text)) << text;
    }
}

TEST_F(AppListSheetTest, LooksAgainWhenThePersonComesBackToTheWindow) {
    list({"org.editor"});
    openSheet();
    EXPECT_TRUE(shows("org.editor"));
    runs("org.editor", "Editor");
    runs("org.player", "Player");
    settleView();
    EXPECT_FALSE(shows("Player")) << "nothing looks by itself";
    comeBack();
    EXPECT_TRUE(shows("Editor"));
    EXPECT_TRUE(shows("Player"));
    platform.applications.stop(1);
    platform.applications.stop(2);
    comeBack();
    EXPECT_TRUE(shows("org.editor"));
    EXPECT_FALSE(shows("Player"));
}

TEST_F(AppListSheetTest, KeyboardGoesToWhatStandsInThePlaceOfARemovedApp) {
    list({"a", "b", "c"});
    openSheet();
    pressAt(QStringLiteral("Remove b"));
    EXPECT_EQ(stored(), (PreferenceStrings{"a", "c"}));
    EXPECT_EQ(focused(), QStringLiteral("Remove c"));
    press(Qt::Key_Space);
    EXPECT_EQ(focused(), QStringLiteral("Remove a"));
    press(Qt::Key_Space);
    EXPECT_EQ(focused(), QStringLiteral("Done"));
}

TEST_F(AppListSheetTest, KeyboardGoesToTheNextAppThatCanBeAdded) {
    runs("a", "Alpha");
    runs("b", "Beta");
    openSheet();
    pressAt(QStringLiteral("Add Alpha"));
    EXPECT_EQ(focused(), QStringLiteral("Add Beta"));
    press(Qt::Key_Space);
    EXPECT_EQ(stored(), (PreferenceStrings{"a", "b"}));
    EXPECT_EQ(focused(), QStringLiteral("Done"));
}

TEST_F(AppListSheetTest, ClickLeavesTheKeyboardWhereItWas) {
    list({"a", "b"});
    openSheet();
    click(QStringLiteral("Remove a"));
    EXPECT_EQ(focused(), QStringLiteral("Done"));
}

} // namespace
} // namespace kestrelfen
