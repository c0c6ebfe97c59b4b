#include "platform/linux/programs/ProgramFixture.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {

namespace {

using testing::ElementsAre;
using testing::Optional;

class LinuxProgramsTest : public ProgramFixture {
  protected:
    std::string identifierOf(const WindowClues& clues) {
        return programs_.identify(clues).bundleIdentifier.value_or("none");
    }

    static WindowClues window(std::string className, std::string instanceName = {},
                              std::string gtkApplicationId = {}) {
        return {std::nullopt, std::move(className), std::move(instanceName), std::move(gtkApplicationId)};
    }
};

TEST_F(LinuxProgramsTest, ASandboxNamesItsProgram) {
    install("org.mozilla.firefox", "Name=Firefox\n");
    install("other", "StartupWMClass=window\n");
    start({.number = 7, .sandbox = "[Context]\nname=wrong\n[Application]\nname=org.mozilla.firefox\n"});
    EXPECT_EQ(programs_.identify(windowOf(7, "window")), (Program{"org.mozilla.firefox", "Firefox"}));
}

TEST_F(LinuxProgramsTest, ASandboxedProgramWithoutAnEntryKeepsItsName) {
    start({.number = 7, .sandbox = "[Application]\nname=org.example.Viewer\n"});
    EXPECT_EQ(identifierOf(windowOf(7, "window")), "org.example.Viewer");
    start({.number = 8, .controlGroup = "/app-flatpak-com.slack.Slack-3.scope"});
    EXPECT_EQ(identifierOf(windowOf(8, "window")), "com.tinyspeck.slackmacgap");
}

TEST_F(LinuxProgramsTest, TheScopeOfAProcessNamesItsProgram) {
    install("org.example.Viewer", "Name=Viewer\n");
    install("other", "StartupWMClass=window\n");
    start({.number = 7, .controlGroup = "/app.slice/app-gnome-org.example.Viewer-7.scope"});
    EXPECT_EQ(identifierOf(windowOf(7, "window")), "org.example.Viewer");
}

TEST_F(LinuxProgramsTest, AProgramStartedByAnotherIsNotTheOther) {
    install("slack", "Exec=slack\n");
    install("org.example.Viewer", "StartupWMClass=viewer\n");
    start({.number = 8, .parent = 7, .controlGroup = "/app.slice/app-gnome-slack-7.scope"});
    EXPECT_EQ(identifierOf(windowOf(8, "viewer")), "org.example.Viewer");
    EXPECT_EQ(identifierOf(windowOf(8, "Unheard")), "Unheard");
}

TEST_F(LinuxProgramsTest, AWindowWithoutAClassIsOfWhatItsProcessWasStartedIn) {
    install("org.example.Viewer", "Name=Viewer\n");
    start({.number = 8, .controlGroup = "/app.slice/app-org.example.Viewer@0f.service"});
    EXPECT_EQ(identifierOf(windowOf(8)), "org.example.Viewer");
}

TEST_F(LinuxProgramsTest, ASnapNamesItsProgram) {
    install("chromium_chromium", "Name=Chromium\nX-SnapInstanceName=chromium\n");
    install("chromium_daemon", "NoDisplay=true\nX-SnapInstanceName=chromium\n");
    const std::string binary = "/snap/chromium/12/usr/lib/chromium/chrome";
    start({.number = 7, .executable = binary, .controlGroup = "/snap.chromium.chromium-x.scope"});
    EXPECT_EQ(identifierOf(windowOf(7, "window")), "chromium_chromium");
    start({.number = 8, .executable = binary, .controlGroup = "/snap.chromium.chromium.scope"});
    EXPECT_EQ(identifierOf(windowOf(8, "window")), "chromium_chromium");
}

TEST_F(LinuxProgramsTest, ASnapOfTheListsNeedsNoEntry) {
    start({.number = 7, .controlGroup = "/snap.telegram-desktop_two.telegram.scope"});
    EXPECT_EQ(identifierOf(windowOf(7, "window")), "ru.keepcoder.Telegram");
}

TEST_F(LinuxProgramsTest, WhatASnapStartsOutsideOfItIsNotTheSnap) {
    start(
        {.number = 8, .executable = "/opt/google/chrome/chrome", .controlGroup = "/snap.code.code-x.scope"});
    EXPECT_EQ(identifierOf(windowOf(8, "Google-chrome")), "com.google.Chrome");
}

TEST_F(LinuxProgramsTest, TheEntryThatStartedTheProcessIsItsProgram) {
    const auto file = install("kde/viewer", "Name=Viewer\n");
    install("viewer", "StartupWMClass=window\n");
    const std::string launched = "A=1" + std::string(1, '\0') + "GIO_LAUNCHED_DESKTOP_FILE=" + file.string() +
                                 std::string(1, '\0') + "GIO_LAUNCHED_DESKTOP_FILE_PID=7" +
                                 std::string(1, '\0');
    start({.number = 7, .environment = launched});
    EXPECT_EQ(identifierOf(windowOf(7, "window")), "kde-viewer");
    start({.number = 8, .environment = launched});
    EXPECT_EQ(identifierOf(windowOf(8, "window")), "viewer");
}

TEST_F(LinuxProgramsTest, TheToolkitsIdComesBeforeTheClass) {
    install("org.example.Viewer", "Name=Viewer\n");
    install("other", "StartupWMClass=window\n");
    EXPECT_EQ(identifierOf(window("window", "", "org.example.Viewer")), "org.example.Viewer");
    EXPECT_EQ(identifierOf(window("window", "", "org.example.Unheard")), "other");
}

TEST_F(LinuxProgramsTest, TheClassIsComparedBeforeTheInstanceAndTheDeclaredClassBeforeTheId) {
    install("declared", "StartupWMClass=Klass\n");
    install("klass", "Name=Klass\n");
    install("instance", "StartupWMClass=page\n");
    EXPECT_EQ(identifierOf(window("klass", "page")), "declared");
    EXPECT_EQ(identifierOf(window("unheard", "PAGE")), "instance");
}

TEST_F(LinuxProgramsTest, TheIdIsComparedBeforeItsLastPart) {
    install("org.example.Viewer", "Name=Viewer\n");
    EXPECT_EQ(identifierOf(window("VIEWER")), "org.example.Viewer");
    install("viewer", "Name=Viewer\n");
    EXPECT_EQ(identifierOf(window("VIEWER")), "viewer");
}

TEST_F(LinuxProgramsTest, TheProgramsFileIsTheLastWord) {
    install("org.example.Viewer", "Name=Viewer\nExec=/usr/bin/view-it %U\n");
    start({.number = 7, .executable = "/usr/bin/View-It (deleted)"});
    EXPECT_EQ(identifierOf(windowOf(7, "unheard")), "org.example.Viewer");
    start({.number = 8, .command = "view-it"});
    EXPECT_EQ(identifierOf(windowOf(8, "unheard")), "org.example.Viewer");
}

TEST_F(LinuxProgramsTest, ProductsOfTheListsAreNamedAsThere) {
    install("firefox-esr", "Name=Firefox ESR\nName[de]=Feuerfuchs\nStartupWMClass=Firefox-esr\n");
    EXPECT_EQ(programs_.identify(window("firefox-esr", "Navigator")),
              (Program{"org.mozilla.firefox", "Feuerfuchs"}));
    install("org.telegram.desktop._0f3a", "StartupWMClass=TelegramDesktop\n");
    EXPECT_EQ(identifierOf(window("TelegramDesktop")), "ru.keepcoder.Telegram");
    EXPECT_EQ(programs_.identify(window("Google-chrome")), (Program{"com.google.Chrome", "Google-chrome"}));
}

TEST_F(LinuxProgramsTest, APageThatIsInstalledAsAProgramIsNotItsBrowser) {
    install("google-chrome", "Exec=/usr/bin/google-chrome-stable %U\n");
    install("chrome-page-Default",
            "Exec=/usr/bin/google-chrome-stable --app-id=page\nStartupWMClass=crx_page\n");
    EXPECT_EQ(identifierOf(window("crx_page")), "chrome-page-Default");
    EXPECT_EQ(identifierOf(window("Google-chrome")), "com.google.Chrome");
}

TEST_F(LinuxProgramsTest, WithoutAnEntryTheClassStandsForTheProgram) {
    EXPECT_EQ(programs_.identify(window("XEyes", "xeyes")), (Program{"XEyes", "XEyes"}));
    EXPECT_EQ(programs_.identify({}), Program());
    EXPECT_EQ(programs_.identify(windowOf(12345)), Program());
}

TEST_F(LinuxProgramsTest, AnEntryWithoutANameIsShownByItsClass) {
    install("viewer", "StartupWMClass=Klass\n");
    EXPECT_EQ(programs_.identify(window("Klass")), (Program{"viewer", "Klass"}));
}

TEST_F(LinuxProgramsTest, ANumberThatIsGivenToAnotherProcessIsAnotherProgram) {
    install("one", "Exec=one\n");
    install("two", "Exec=two\n");
    start({.number = 7, .startTime = 1, .executable = "/usr/bin/one"});
    EXPECT_EQ(identifierOf(windowOf(7)), "one");
    start({.number = 7, .startTime = 2, .executable = "/usr/bin/two"});
    EXPECT_EQ(identifierOf(windowOf(7)), "two");
}

TEST_F(LinuxProgramsTest, AProcessThatTurnsIntoAnotherProgramIsTheOther) {
    install("two", "Exec=two\n");
    start({.number = 7, .command = "sh (x) S 1", .executable = "/bin/sh"});
    EXPECT_EQ(identifierOf(windowOf(7)), "none");
    start({.number = 7, .command = "two", .executable = "/usr/bin/two"});
    EXPECT_EQ(identifierOf(windowOf(7)), "two");
}

TEST_F(LinuxProgramsTest, ANewlyInstalledProgramIsKnown) {
    EXPECT_FALSE(programs_.isInstalled("com.spotify.client"));
    install("spotify", "Name=Spotify\nStartupWMClass=Spotify\n");
    EXPECT_TRUE(programs_.isInstalled("com.spotify.client"));
    EXPECT_EQ(programs_.identify(window("spotify")).localizedName, "Spotify");
}

TEST_F(LinuxProgramsTest, WhatHasAnEntryThatIsNotDeletedIsInstalled) {
    install("viewer", "NoDisplay=true\n");
    install("vlc", "Hidden=true\n");
    EXPECT_TRUE(programs_.isInstalled("viewer"));
    EXPECT_FALSE(programs_.isInstalled("org.videolan.vlc"));
    EXPECT_FALSE(programs_.isInstalled("com.apple.Safari"));
}

TEST_F(LinuxProgramsTest, AProgramIsStartedByItsPlainestEntry) {
    install("code-url-handler", "Exec=/usr/bin/code --open-url %U\nNoDisplay=true\nStartupWMClass=Code\n");
    install("code", "Exec=env A=\"b c\" /usr/bin/code %F\n");
    EXPECT_THAT(programs_.launchCommand("com.microsoft.VSCode"),
                Optional(ElementsAre("env", "A=b c", "/usr/bin/code")));
}

TEST_F(LinuxProgramsTest, WhatCannotBeStartedByACommandHasNone) {
    install("vim", "Exec=vim %F\nTerminal=true\n");
    install("activated", "DBusActivatable=true\n");
    EXPECT_EQ(programs_.launchCommand("vim"), std::nullopt);
    EXPECT_EQ(programs_.launchCommand("activated"), std::nullopt);
    EXPECT_EQ(programs_.launchCommand("com.spotify.client"), std::nullopt);
}

} // namespace

} // namespace kestrelfen
