#include "platform/linux/DirectoryWatch.hpp"
#include "platform/linux/EventLoop.hpp"
#include "support/TemporaryFolder.hpp"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

namespace kestrelfen {
namespace {

/// Long enough for everything that went before to be told of.
constexpr std::chrono::milliseconds quiet{200};

/// A folder and what a watch on it tells.
class DirectoryWatchTests : public testing::Test {
  protected:
    DirectoryWatch watch(const std::filesystem::path& folder) {
        return {folder, [this] { ++calls_; }};
    }

    void doAfterQuiet(const std::function<void()>& action) {
        pass(quiet);
        calls_ = 0;
        action();
    }

    bool isToldOf(const std::function<void()>& action) {
        doAfterQuiet(action);
        return waitUntil([this] { return calls_ > 0; });
    }

    bool isNotToldOf(const std::function<void()>& action) {
        doAfterQuiet(action);
        pass(quiet);
        return calls_ == 0;
    }

    TemporaryFolder folder_;
    int calls_ = 0;
};

TEST_F(DirectoryWatchTests, tellsOfEveryKindOfChange) {
    const DirectoryWatch watch = this->watch(folder_.path());
    const auto file = folder_ / "file";
    EXPECT_FALSE(watch.failure());
    EXPECT_TRUE(isToldOf([&] { writeInPlace(file, "created"); }));
    EXPECT_TRUE(isToldOf([&] { writeInPlace(file, "written"); }));
    EXPECT_TRUE(isToldOf([&] { std::filesystem::permissions(file, std::filesystem::perms(0400)); }));
    EXPECT_TRUE(isToldOf([&] { std::filesystem::rename(file, folder_ / "other"); }));
    EXPECT_TRUE(isToldOf([&] { std::filesystem::remove(folder_ / "other"); }));
    EXPECT_TRUE(isToldOf([&] { std::filesystem::create_symlink("nowhere", file); }));
}

TEST_F(DirectoryWatchTests, tellsWellWithinASecond) {
    const DirectoryWatch watch = this->watch(folder_.path());
    QElapsedTimer timer;
    timer.start();
    writeInPlace(folder_ / "file", "created");
    EXPECT_TRUE(waitUntil([this] { return calls_ > 0; }));
    EXPECT_LT(timer.elapsed(), 1'000);
}

TEST_F(DirectoryWatchTests, tellsOfAFileThatComesFromElsewhere) {
    const TemporaryFolder elsewhere;
    writeInPlace(elsewhere / "file", "moved");
    const DirectoryWatch watch = this->watch(folder_.path());
    EXPECT_TRUE(isToldOf([&] { std::filesystem::rename(elsewhere / "file", folder_ / "file"); }));
}

TEST_F(DirectoryWatchTests, tellsOnceOfChangesThatComeTogether) {
    const DirectoryWatch watch = this->watch(folder_.path());
    for (int number = 0; number < 50; ++number) {
        writeInPlace(folder_ / std::to_string(number), "x");
    }
    pass(quiet);
    EXPECT_EQ(calls_, 1);
}

TEST_F(DirectoryWatchTests, isStillWhileNothingChanges) {
    writeInPlace(folder_ / "file", "content");
    const DirectoryWatch watch = this->watch(folder_.path());
    EXPECT_EQ(contentOf(folder_ / "file"), "content");
    pass(quiet);
    EXPECT_EQ(calls_, 0);
}

TEST_F(DirectoryWatchTests, waitsForAFolderThatComesLater) {
    const auto deep = folder_ / "one/two";
    const DirectoryWatch watch = this->watch(deep);
    EXPECT_FALSE(watch.failure());
    EXPECT_TRUE(isNotToldOf([&] { writeInPlace(folder_ / "file", "beside"); }));
    EXPECT_TRUE(isToldOf([&] { std::filesystem::create_directories(deep); }));
    EXPECT_TRUE(isToldOf([&] { writeInPlace(deep / "file", "inside"); }));
}

TEST_F(DirectoryWatchTests, waitsForAFolderThatComesStepByStep) {
    const DirectoryWatch watch = this->watch(folder_ / "one/two");
    EXPECT_TRUE(isNotToldOf([&] { std::filesystem::create_directory(folder_ / "one"); }));
    EXPECT_TRUE(isToldOf([&] { std::filesystem::create_directory(folder_ / "one/two"); }));
}

TEST_F(DirectoryWatchTests, followsAFolderThatIsDeletedAndMadeAgain) {
    const auto folder = folder_ / "folder";
    std::filesystem::create_directory(folder);
    const DirectoryWatch watch = this->watch(folder);
    for (int times = 0; times < 2; ++times) {
        EXPECT_TRUE(isToldOf([&] { std::filesystem::remove(folder); }));
        EXPECT_TRUE(isToldOf([&] { std::filesystem::create_directory(folder); }));
        EXPECT_TRUE(isToldOf([&] { writeInPlace(folder / "file", "inside"); }));
        EXPECT_TRUE(isToldOf([&] { std::filesystem::remove(folder / "file"); }));
    }
}

TEST_F(DirectoryWatchTests, followsAFolderThatAnotherReplaces) {
    const auto folder = folder_ / "folder";
    std::filesystem::create_directory(folder);
    std::filesystem::create_directory(folder_ / "next");
    const DirectoryWatch watch = this->watch(folder);
    EXPECT_TRUE(isToldOf([&] {
        std::filesystem::rename(folder, folder_ / "old");
        std::filesystem::rename(folder_ / "next", folder);
    }));
    EXPECT_TRUE(isNotToldOf([&] { writeInPlace(folder_ / "old/file", "elsewhere"); }));
    EXPECT_TRUE(isToldOf([&] { writeInPlace(folder / "file", "inside"); }));
}

TEST_F(DirectoryWatchTests, isSilentOnceItHasEnded) {
    {
        const DirectoryWatch watch = this->watch(folder_.path());
        writeInPlace(folder_ / "file", "x");
    }
    pass(quiet);
    EXPECT_EQ(calls_, 0);
}

} // namespace
} // namespace kestrelfen
