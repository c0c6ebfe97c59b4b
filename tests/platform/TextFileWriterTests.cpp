#include "platform/posix/PosixTextFileWriter.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/UnprivilegedSection.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace kestrelfen {
namespace {

namespace fs = std::filesystem;

class TextFileWriterTest : public testing::Test {
  protected:
    std::optional<std::string> write(const fs::path& path, std::string_view text) {
        return writer.write(path.string(), text);
    }

    PosixTextFileWriter writer;
    TemporaryFolder folder;
};

TEST_F(TextFileWriterTest, WritesAndReplaces) {
    EXPECT_EQ(write(folder / "a.csv", "one\n"), std::nullopt);
    EXPECT_EQ(contentOf(folder / "a.csv"), "one\n");
    EXPECT_EQ(write(folder / "a.csv", "2\n"), std::nullopt);
    EXPECT_EQ(contentOf(folder / "a.csv"), "2\n");
    EXPECT_EQ(folder.names(), std::set<std::string>{"a.csv"});
}

TEST_F(TextFileWriterTest, FindsARelativePath) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    const auto error = write("a.csv", "one\n");
    fs::current_path(before);
    EXPECT_EQ(error, std::nullopt);
    EXPECT_EQ(contentOf(folder / "a.csv"), "one\n");
}

TEST_F(TextFileWriterTest, ReplacesWhatALinkLeadsTo) {
    writeInPlace(folder / "real.csv", "old\n");
    fs::create_symlink("real.csv", folder / "link.csv");
    EXPECT_EQ(write(folder / "link.csv", "new\n"), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(folder / "link.csv"));
    EXPECT_EQ(contentOf(folder / "real.csv"), "new\n");
}

TEST_F(TextFileWriterTest, MakesNoFolders) {
    EXPECT_EQ(write(folder / "no" / "a.csv", "one\n"), "No such file or directory");
    writeInPlace(folder / "file", "x");
    EXPECT_EQ(write(folder / "file" / "a.csv", "one\n"), "Not a directory");
    EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(TextFileWriterTest, ReplacesFilesOnly) {
    EXPECT_EQ(write(folder.path(), "one\n"), "Is a directory");
    EXPECT_EQ(write("", "one\n"), "No such file or directory");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(write(folder / "pipe", "one\n"), "Operation not supported");
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(TextFileWriterTest, LeavesAFileAloneThatItMayNotWrite) {
    writeInPlace(folder / "a.csv", "old\n");
    fs::permissions(folder / "a.csv", fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    const UnprivilegedSection unprivileged(folder.path());
    ASSERT_TRUE(unprivileged.isEntered());
    EXPECT_EQ(write(folder / "a.csv", "new\n"), "Permission denied");
    EXPECT_EQ(contentOf(folder / "a.csv"), "old\n");
}

} // namespace
} // namespace kestrelfen
