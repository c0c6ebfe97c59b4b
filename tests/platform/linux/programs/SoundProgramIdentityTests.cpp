#include "platform/linux/programs/ProgramFixture.hpp"

namespace kestrelfen {

namespace {

class SoundProgramIdentityTest : public ProgramFixture {
  protected:
    std::string identifierOf(const ProgramClues& clues) {
        return programs_.bundleIdentifier(clues).value_or("none");
    }

    void startChain(std::int32_t children) {
        start({.number = 100, .executable = "/usr/lib/slack/slack"});
        for (std::int32_t child = 1; child <= children; ++child) {
            start({.number = 100 + child, .parent = 99 + child, .executable = "/usr/bin/helper"});
        }
    }
};

TEST_F(SoundProgramIdentityTest, WithoutAClueThereIsNoProduct) {
    EXPECT_EQ(identifierOf({}), "none");
    EXPECT_EQ(identifierOf({4711, "unheard", "org.example.Unheard", "unheard"}), "none");
}

TEST_F(SoundProgramIdentityTest, TheProcessComesBeforeWhatItSaysOfItself) {
    start({.number = 7, .executable = "/app/x", .sandbox = "[Application]\nname=com.discordapp.Discord\n"});
    EXPECT_EQ(identifierOf({7, "x", "vlc", "vlc"}), "com.hnc.Discord");
}

TEST_F(SoundProgramIdentityTest, TheApplicationsIdComesBeforeItsBinary) {
    EXPECT_EQ(identifierOf({std::nullopt, "vlc", "org.mozilla.firefox", ""}), "org.mozilla.firefox");
    EXPECT_EQ(identifierOf({std::nullopt, "vlc", "org.example.Unheard", "firefox"}), "org.videolan.vlc");
}

TEST_F(SoundProgramIdentityTest, ABinaryIsKnownByItsEntry) {
    install("org.example.Viewer", "Exec=/usr/bin/view-it\n");
    EXPECT_EQ(identifierOf({std::nullopt, "view-it", "", ""}), "org.example.Viewer");
}

TEST_F(SoundProgramIdentityTest, ABinaryOfTheListsIsKnownWhateverStartsIt) {
    install("zoom-workplace", "Exec=/usr/bin/zoom %U\n");
    EXPECT_EQ(identifierOf({std::nullopt, "zoom", "", ""}), "us.zoom.xos");
}

TEST_F(SoundProgramIdentityTest, TheNumberAloneIsEnough) {
    start({.number = 7, .executable = "/opt/google/chrome/chrome"});
    EXPECT_EQ(identifierOf({7, "", "", ""}), "com.google.Chrome");
}

TEST_F(SoundProgramIdentityTest, ANumberOfAnotherBinaryIsThatOfASandbox) {
    start({.number = 7, .executable = "/usr/lib/slack/slack"});
    EXPECT_EQ(identifierOf({7, "viewer", "", ""}), "none");
    EXPECT_EQ(identifierOf({7, "viewer", "org.mozilla.firefox", ""}), "org.mozilla.firefox");
}

TEST_F(SoundProgramIdentityTest, AProcessWhoseFileIsHiddenIsKnownByItsShortenedName) {
    start({.number = 7, .command = "a-rather-long-n", .parent = 6});
    start({.number = 6, .executable = "/usr/lib/slack/slack"});
    EXPECT_EQ(identifierOf({7, "a-rather-long-name", "", ""}), "com.tinyspeck.slackmacgap");
}

TEST_F(SoundProgramIdentityTest, APartOfAProgramIsKnownByItsParents) {
    startChain(10);
    EXPECT_EQ(identifierOf({110, "helper", "", ""}), "com.tinyspeck.slackmacgap");
}

TEST_F(SoundProgramIdentityTest, ParentsAreFollowedForTenGenerations) {
    startChain(11);
    EXPECT_EQ(identifierOf({111, "helper", "", ""}), "none");
}

TEST_F(SoundProgramIdentityTest, ParentsInACircleEnd) {
    start({.number = 7, .parent = 8});
    start({.number = 8, .parent = 7});
    EXPECT_EQ(identifierOf({7, "", "", ""}), "none");
}

TEST_F(SoundProgramIdentityTest, APartOfAProgramIsKnownByWhatItWasStartedIn) {
    install("org.example.Viewer", "Name=Viewer\n");
    start({.number = 7, .controlGroup = "/app.slice/app-org.example.Viewer@0f.service"});
    EXPECT_EQ(identifierOf({7, "", "", ""}), "org.example.Viewer");
}

TEST_F(SoundProgramIdentityTest, TheIconIsTheLastClue) {
    install("org.example.Viewer", "Icon=picture\n");
    EXPECT_EQ(identifierOf({std::nullopt, "", "", "firefox"}), "org.mozilla.firefox");
    EXPECT_EQ(identifierOf({std::nullopt, "unheard", "", "Picture"}), "org.example.Viewer");
}

TEST_F(SoundProgramIdentityTest, TheIconOfEverythingBuiltUponChromiumTellsNothing) {
    install("chromium-browser", "Icon=chromium-browser\n");
    EXPECT_EQ(identifierOf({std::nullopt, "unheard", "", "chromium-browser"}), "none");
}

TEST_F(SoundProgramIdentityTest, AProgramThatIsInstalledWhileItRunsIsFound) {
    start({.number = 7, .executable = "/usr/bin/view-it"});
    EXPECT_EQ(identifierOf({7, "view-it", "", ""}), "none");
    install("viewer", "Exec=view-it\n");
    EXPECT_EQ(identifierOf({7, "view-it", "", ""}), "viewer");
}

} // namespace

} // namespace kestrelfen
