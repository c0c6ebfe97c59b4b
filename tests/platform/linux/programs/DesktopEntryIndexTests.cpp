#include "platform/linux/DesktopEntryIndex.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <chrono>

namespace kestrelfen {

namespace {

namespace fs = std::filesystem;

class DesktopEntryIndexTest : public testing::Test {
  protected:
    void write(const std::string& file, const std::string& lines) {
        fs::create_directories((folder_ / file).parent_path());
        writeInPlace(folder_ / file, "[Desktop Entry]\nType=Application\n" + lines);
    }

    /// As if nothing had changed there for an hour.
    void settle(const std::string& folder) {
        fs::last_write_time(folder_ / folder, fs::file_time_type::clock::now() - std::chrono::hours(1));
    }

    const DesktopEntryIndex& read() {
        index_.refresh();
        return index_;
    }

    static std::string idOf(const DesktopEntry* entry) { return entry ? entry->id : "none"; }

    const TemporaryFolder folder_;
    DesktopEntryIndex index_{{folder_ / "own", folder_ / "system"}, ""};
};

TEST_F(DesktopEntryIndexTest, SubfoldersAreJoinedToTheIdByDashes) {
    write("system/kde/deep/viewer.desktop", "Name=A\n");
    write("system/plain.txt", "Name=B\n");
    ASSERT_EQ(read().entries().size(), 1U);
    EXPECT_EQ(idOf(index_.withId("kde-deep-viewer")), "kde-deep-viewer");
}

TEST_F(DesktopEntryIndexTest, TheEarlierFolderHolds) {
    write("own/viewer.desktop", "Name=Own\n");
    write("system/viewer.desktop", "Name=System\n");
    ASSERT_EQ(read().entries().size(), 1U);
    EXPECT_EQ(index_.withId("viewer")->name, "Own");
}

TEST_F(DesktopEntryIndexTest, ADeletedEntryHidesThoseOfItsId) {
    write("own/viewer.desktop", "Name=Own\nHidden=true\n");
    write("system/viewer.desktop", "Name=System\n");
    EXPECT_TRUE(read().entries().empty());
    EXPECT_EQ(index_.withId("viewer"), nullptr);
}

TEST_F(DesktopEntryIndexTest, AnEntryIsFoundByEachOfItsNamesWithoutCase) {
    write("system/org.example.Viewer.desktop",
          "StartupWMClass=Klass\nExec=/usr/bin/ViewIt %U\nIcon=Picture\nX-SnapInstanceName=Snapped\n");
    read();
    const DesktopEntry* const entry = index_.withId("ORG.example.viewer");
    ASSERT_TRUE(entry);
    EXPECT_EQ(index_.withLastIdPart("VIEWER"), entry);
    EXPECT_EQ(index_.withStartupClass("klass"), entry);
    EXPECT_EQ(index_.withExecutable("viewit"), entry);
    EXPECT_EQ(index_.withIcon("picture"), entry);
    EXPECT_EQ(index_.withSnap("snapped"), entry);
}

TEST_F(DesktopEntryIndexTest, NothingIsFoundByAnEmptyName) {
    write("system/viewer.desktop", "Name=A\n");
    read();
    EXPECT_EQ(index_.withStartupClass(""), nullptr);
    EXPECT_EQ(index_.withExecutable(""), nullptr);
}

TEST_F(DesktopEntryIndexTest, OfSeveralEntriesThePlainestIsFound) {
    write("system/a-handler.desktop", "StartupWMClass=code\nExec=code\nNoDisplay=true\n");
    write("system/b-page.desktop", "StartupWMClass=other\nExec=code --app=page\n");
    write("system/c-code.desktop", "StartupWMClass=code\nExec=code\n");
    read();
    EXPECT_EQ(idOf(index_.withStartupClass("code")), "c-code");
    EXPECT_EQ(idOf(index_.withExecutable("code")), "c-code");
}

TEST_F(DesktopEntryIndexTest, ThereNeedBeNoFolder) {
    EXPECT_TRUE(read().entries().empty());
}

TEST_F(DesktopEntryIndexTest, AProgramThatIsInstalledLaterIsFound) {
    read();
    write("own/viewer.desktop", "Name=A\n");
    EXPECT_EQ(idOf(read().withId("viewer")), "viewer");
    write("own/second.desktop", "Name=B\n");
    EXPECT_EQ(idOf(read().withId("second")), "second");
}

TEST_F(DesktopEntryIndexTest, AProgramThatIsInstalledIntoAnOldSubfolderIsFound) {
    write("system/kde/viewer.desktop", "Name=A\n");
    settle("system/kde");
    settle("system");
    read();
    write("system/kde/second.desktop", "Name=B\n");
    EXPECT_EQ(idOf(read().withId("kde-second")), "kde-second");
}

TEST_F(DesktopEntryIndexTest, AProgramThatIsRemovedIsFoundNoMore) {
    write("system/viewer.desktop", "Name=A\n");
    settle("system");
    EXPECT_EQ(idOf(read().withId("viewer")), "viewer");
    fs::remove(folder_ / "system/viewer.desktop");
    EXPECT_EQ(idOf(read().withId("viewer")), "none");
}

TEST_F(DesktopEntryIndexTest, WithoutChangesNothingIsReadAgain) {
    write("system/viewer.desktop", "Name=First\n");
    settle("system");
    read();
    writeInPlace(folder_ / "system/viewer.desktop", "[Desktop Entry]\nName=Second\n");
    EXPECT_EQ(read().withId("viewer")->name, "First");
}

TEST_F(DesktopEntryIndexTest, AFolderThatIsDatedAheadIsNotReadAgainUntilItChanges) {
    write("system/viewer.desktop", "Name=First\n");
    fs::last_write_time(folder_ / "system", fs::file_time_type::clock::now() + std::chrono::hours(1));
    read();
    writeInPlace(folder_ / "system/viewer.desktop", "[Desktop Entry]\nName=Second\n");
    EXPECT_EQ(read().withId("viewer")->name, "First");
    write("system/other.desktop", "Name=Other\n");
    EXPECT_EQ(read().withId("viewer")->name, "Second");
}

} // namespace

} // namespace kestrelfen
