#include "store/StoreFile.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/UnprivilegedSection.hpp"

#include <gmock/gmock.h>
#include <system_error>

namespace kestrelfen {
namespace {

using std::filesystem::perms;
using testing::ElementsAre;
using testing::IsEmpty;

class StoreFileTest : public testing::Test {
  protected:
    /// What the file system refuses with when the file is to be made there.
    static std::error_code refusal(const std::filesystem::path& path) {
        try {
            StoreFile(path).makeIfMissing();
        } catch (const std::system_error& error) {
            return error.code();
        }
        return {};
    }

    void writeBeside(const std::string& ending, const std::string& content) const {
        writeInPlace(file.path().string() + ending, content);
    }

    TemporaryFolder folder;
    const StoreFile file{folder / "Kestrelfen.sqlite"};
};

TEST_F(StoreFileTest, IsMadeOnceAndEmpty) {
    EXPECT_TRUE(file.makeIfMissing());
    EXPECT_EQ(std::filesystem::file_size(file.path()), 0U);
    writeBeside("", "history");
    EXPECT_FALSE(file.makeIfMissing());
    EXPECT_EQ(contentOf(file.path()), "history");
}

TEST_F(StoreFileTest, FoldersAreMadeAlsoWhereThePathGoesBack) {
    const StoreFile roundabout(folder / "a/b/../c/Kestrelfen.sqlite");
    EXPECT_TRUE(roundabout.makeIfMissing());
    EXPECT_TRUE(std::filesystem::is_regular_file(folder / "a/c/Kestrelfen.sqlite"));
}

TEST_F(StoreFileTest, AFolderThatGoesBackToWhereItCameFromIsThereAlready) {
    const StoreFile roundabout(folder / "a/../Kestrelfen.sqlite");
    EXPECT_TRUE(roundabout.makeIfMissing());
    EXPECT_TRUE(std::filesystem::is_regular_file(file.path()));
}

TEST_F(StoreFileTest, ANameThatIsTooLongIsRefused) {
    const std::string longName(300, 'x');
    EXPECT_EQ(refusal(folder / longName), std::errc::filename_too_long);
    EXPECT_EQ(refusal(folder / longName / "Kestrelfen.sqlite"), std::errc::filename_too_long);
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_EQ(refusal(folder / "new" / longName / "Kestrelfen.sqlite"), std::errc::filename_too_long);
}

TEST_F(StoreFileTest, AFileInAFoldersPlaceIsRefused) {
    writeInPlace(folder / "file", "");
    EXPECT_EQ(refusal(folder / "file/Kestrelfen.sqlite"), std::errc::not_a_directory);
    EXPECT_EQ(refusal(folder / "file/a/Kestrelfen.sqlite"), std::errc::not_a_directory);
}

TEST_F(StoreFileTest, AFolderThatMayNotBeMadeIsRefused) {
    const UnprivilegedSection section(folder.path());
    if (!section.isEntered()) {
        GTEST_SKIP() << "this process is the superuser and cannot become anybody else";
    }
    std::filesystem::permissions(folder.path(), perms(0555));
    EXPECT_EQ(refusal(folder / "a/Kestrelfen.sqlite"), std::errc::permission_denied);
    EXPECT_EQ(refusal(folder / "a/b/Kestrelfen.sqlite"), std::errc::permission_denied);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(StoreFileTest, RemovalTakesEverythingThatTheDatabaseKeepsAndNothingElse) {
    for (const char* const ending : {"", "-wal", "-shm", "-journal", ".backup"}) {
        writeBeside(ending, "content");
    }
    file.remove();
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite.backup"));
    file.remove();
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite.backup"));
}

TEST_F(StoreFileTest, TracesAreAnEmptyLogAndItsIndex) {
    writeBeside("", "history");
    writeBeside("-wal", "");
    writeBeside("-shm", "index");
    file.removeTraces(false, false);
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite"));
    file.removeTraces(false, false);
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite"));
}

TEST_F(StoreFileTest, WhatAnotherProgramHasSavedMeanwhileIsNoTrace) {
    writeBeside("-wal", "saved");
    file.removeTraces(false, false);
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite-wal"));
}

TEST_F(StoreFileTest, WhatWasThereBeforeIsNoTrace) {
    writeBeside("-wal", "");
    writeBeside("-shm", "index");
    file.removeTraces(true, true);
    EXPECT_THAT(folder.names(), ElementsAre("Kestrelfen.sqlite-shm", "Kestrelfen.sqlite-wal"));
}

} // namespace
} // namespace kestrelfen
