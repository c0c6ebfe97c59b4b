#include "platform/fake/FakePlatform.hpp"
#include "sensing/SmartPauseLists.hpp"
#include "ui/AppListEditor/AppListContent.hpp"
#include "ui/AppListEditor/AppListEditor.hpp"
#include "ui/AppListEditor/SmartPauseWords.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

std::string told(const std::vector<AppListEditor::App>& apps) {
    std::string text;
    for (const auto& app : apps) {
        text += (text.empty() ? "" : ", ") + app.name + (app.name == app.bundleID ? "" : "=" + app.bundleID);
    }
    return text;
}

class AppListEditorTest : public testing::Test {
  protected:
    void run(std::optional<std::string> bundleID, std::optional<std::string> name) {
        platform.applications.start({std::move(bundleID), std::move(name), ++lastProcess}, 0);
    }
    void list(PreferenceStrings bundleIDs) {
        platform.preferences.set("focusAppBundleIDs", std::move(bundleIDs));
    }
    const PreferenceStrings& stored() {
        return SmartPauseLists::bundleIDs(SmartPauseKind::focusApps, platform.preferences);
    }
    AppListEditor editor() { return AppListEditor(platform.ports(), SmartPauseKind::focusApps); }

    FakePlatform platform;
    std::int32_t lastProcess = 0;
};

TEST_F(AppListEditorTest, NamesTheKinds) {
    const auto sentence = [](SmartPauseKind kind) {
        const auto words = SmartPauseWords::of(kind);
        return words.title + ": " + words.sentence;
    };
    EXPECT_EQ(sentence(SmartPauseKind::meetings),
              "Meetings or Calls: Apps whose microphone use counts as a call");
    EXPECT_EQ(sentence(SmartPauseKind::video), "Video Playback: Apps whose audio counts as video playback");
    EXPECT_EQ(sentence(SmartPauseKind::screenSharing),
              "Screen Recording or Sharing: Apps that only run while capturing — not ones that idle in the "
              "menu bar");
    EXPECT_EQ(sentence(SmartPauseKind::focusApps), "Deep Focus Apps: Apps that mean you're in deep focus");
}

TEST_F(AppListEditorTest, EmptyAtFirstForFocusApps) {
    EXPECT_EQ(told(editor().ids()), "");
    EXPECT_EQ(told(editor().runningChoices()), "");
    EXPECT_EQ(AppListEditor(platform.ports(), SmartPauseKind::meetings).ids().size(), 8U);
}

TEST_F(AppListEditorTest, ListedAppsStandByNameAndWithoutOneByIdentifier) {
    list({"a.z", "b.y", "c.x", "d.w"});
    run("a.z", "zoo");
    run("b.y", "Zebra");
    run("c.x", std::nullopt);
    EXPECT_EQ(told(editor().ids()), "Zebra=b.y, c.x, d.w, zoo=a.z");
}

TEST_F(AppListEditorTest, FirstRunningApplicationNamesIt) {
    list({"a"});
    run("a", std::nullopt);
    run("a", "Second");
    EXPECT_EQ(told(editor().ids()), "a");
}

TEST_F(AppListEditorTest, ChoicesAreTheOthersThatRunByName) {
    list({"listed"});
    run("b", "beta");
    run("listed", "Listed");
    run("c", "Zeta");
    run("b", "beta again");
    run(std::nullopt, "No identifier");
    run("d.no-name", std::nullopt);
    run("app.kestrelfen.mac", "Kestrelfen");
    EXPECT_EQ(told(editor().runningChoices()), "Zeta=c, beta=b, d.no-name");
}

TEST_F(AppListEditorTest, AppsWithoutAnIconAreNoChoice) {
    platform.applications.setRunningUnseen("agent", true);
    EXPECT_EQ(told(editor().runningChoices()), "");
}

TEST_F(AppListEditorTest, AddedAppMovesToTheList) {
    run("b", "Beta");
    run("a", "Alpha");
    AppListEditor apps(platform.ports(), SmartPauseKind::focusApps);
    EXPECT_TRUE(apps.offers("a"));
    apps.add("b");
    apps.add("a");
    EXPECT_EQ(stored(), (PreferenceStrings{"a", "b"}));
    EXPECT_EQ(told(apps.ids()), "Alpha=a, Beta=b");
    EXPECT_EQ(told(apps.runningChoices()), "");
    EXPECT_FALSE(apps.offers("a"));
    EXPECT_TRUE(apps.lists("a"));
}

TEST_F(AppListEditorTest, AddingToABuiltInListKeepsIt) {
    run("b", "Beta");
    AppListEditor apps(platform.ports(), SmartPauseKind::screenSharing);
    apps.add("b");
    EXPECT_EQ(SmartPauseLists::bundleIDs(SmartPauseKind::screenSharing, platform.preferences),
              (PreferenceStrings{"b", "com.apple.screencaptureui"}));
    EXPECT_EQ(platform.preferences.object("focusAppBundleIDs"), nullptr);
}

TEST_F(AppListEditorTest, RemovingTakesEveryOccurrence) {
    list({"b", "a", "b"});
    AppListEditor apps(platform.ports(), SmartPauseKind::focusApps);
    EXPECT_EQ(apps.ids().size(), 3U);
    apps.remove("b");
    EXPECT_EQ(stored(), PreferenceStrings{"a"});
    EXPECT_EQ(told(apps.ids()), "a");
    apps.remove("a");
    EXPECT_NE(platform.preferences.object("focusAppBundleIDs"), nullptr);
    EXPECT_EQ(told(apps.ids()), "");
}

TEST_F(AppListEditorTest, DefaultsAreWritten) {
    list({"a"});
    AppListEditor apps(platform.ports(), SmartPauseKind::focusApps);
    apps.restoreDefaults();
    EXPECT_EQ(told(apps.ids()), "");
    EXPECT_EQ(*platform.preferences.strings("focusAppBundleIDs"), PreferenceStrings{});
    AppListEditor video(platform.ports(), SmartPauseKind::video);
    video.remove("com.apple.TV");
    EXPECT_FALSE(video.lists("com.apple.TV"));
    video.restoreDefaults();
    EXPECT_TRUE(video.lists("com.apple.TV"));
    EXPECT_EQ(platform.preferences.strings("videoAppBundleIDs")->size(), 10U);
}

TEST_F(AppListEditorTest, RestoringDefaultsReloadsEvenWhereNothingChanges) {
    AppListEditor meetings(platform.ports(), SmartPauseKind::meetings);
    run("us.zoom.xos", "Zoom");
    run("b", "Beta");
    meetings.restoreDefaults();
    EXPECT_EQ(meetings.ids().front().name, "Zoom");
    EXPECT_EQ(told(meetings.runningChoices()), "Beta=b");
}

TEST_F(AppListEditorTest, SheetTellsItsTexts) {
    using Row = AppListContent::Row;
    list({"a"});
    run("a", "Alpha");
    run("b", "Beta");
    const AppListContent content = AppListContent::of(editor());
    EXPECT_EQ(content.title, "Deep Focus Apps");
    EXPECT_EQ(content.sentence, "Apps that mean you're in deep focus");
    EXPECT_EQ(content.listed, (std::vector<Row>{{"a", "Alpha", "Remove Alpha"}}));
    EXPECT_EQ(content.choices, (std::vector<Row>{{"b", "Beta", "Add Beta"}}));
    EXPECT_EQ(AppListContent::emptyText, "No apps yet.");
    EXPECT_EQ(AppListContent::addHeading, "Add a running app");
    EXPECT_EQ(AppListContent::nothingToAddText, "Everything running is already listed.");
    EXPECT_EQ(AppListContent::restoreButton, "Restore Defaults");
    EXPECT_EQ(AppListContent::doneButton, "Done");
}

TEST_F(AppListEditorTest, TellsOfChanges) {
    run("b", "Beta");
    AppListEditor apps(platform.ports(), SmartPauseKind::focusApps);
    int changes = 0;
    const Subscription subscription = apps.observe([&changes] { ++changes; });
    apps.reload();
    EXPECT_EQ(changes, 0);
    apps.add("b");
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace kestrelfen
