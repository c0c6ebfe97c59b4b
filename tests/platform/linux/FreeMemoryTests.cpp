#include "platform/linux/FreeMemory.hpp"
#include "platform/posix/FileDescriptor.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace kestrelfen {
namespace {

constexpr std::size_t pageSize = 4096;

/// Two pages of a file, for this process alone.
class FreeMemoryTest : public testing::Test {
  protected:
    FreeMemoryTest() {
        writeInPlace(folder_ / "file", std::string(2 * pageSize, 'f'));
        const FileDescriptor file(::open((folder_ / "file").c_str(), O_RDONLY));
        pages_ = static_cast<char*>(
            ::mmap(nullptr, 2 * pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE, file.number(), 0));
    }
    ~FreeMemoryTest() override { ::munmap(pages_, 2 * pageSize); }

    void forbidWriting() { ::mprotect(pages_, 2 * pageSize, PROT_READ); }

    /// Whether that page is in memory for this process.
    static bool isHeld(const char* page) {
        const FileDescriptor map(::open("/proc/self/pagemap", O_RDONLY));
        std::uint64_t entry = 0;
        const auto place =
            static_cast<off_t>(reinterpret_cast<std::uintptr_t>(page) / pageSize * sizeof entry);
        EXPECT_EQ(::pread(map.number(), &entry, sizeof entry, place), static_cast<ssize_t>(sizeof entry));
        return (entry >> 63U) != 0;
    }

    TemporaryFolder folder_;
    char* pages_ = nullptr;
};

TEST_F(FreeMemoryTest, LetsGoOfWhatCanBeReadAgain) {
    // A file that has just been written would count as changed until it is on the disk.
    const FileDescriptor zone(::open("/usr/share/zoneinfo/Europe/Berlin", O_RDONLY));
    ASSERT_TRUE(zone.isOpen());
    auto* const page =
        static_cast<char*>(::mmap(nullptr, pageSize, PROT_READ, MAP_PRIVATE, zone.number(), 0));
    EXPECT_EQ(std::string_view(page, 4), "TZif");
    ASSERT_TRUE(isHeld(page));
    releaseCode();
    EXPECT_FALSE(isHeld(page));
    EXPECT_EQ(std::string_view(page, 4), "TZif");
    ::munmap(page, pageSize);
}

TEST_F(FreeMemoryTest, KeepsWhatWasWrittenBeforeWritingWasForbidden) {
    std::strcpy(pages_, "written");
    forbidWriting();
    releaseCode();
    EXPECT_STREQ(pages_, "written");
    EXPECT_EQ(pages_[pageSize], 'f');
}

TEST_F(FreeMemoryTest, KeepsWhatMayStillBeWritten) {
    std::strcpy(pages_, "written");
    releaseCode();
    EXPECT_STREQ(pages_, "written");
}

TEST_F(FreeMemoryTest, KeepsWhatIsOfNoFile) {
    auto* const page = static_cast<char*>(
        ::mmap(nullptr, pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    std::strcpy(page, "made");
    ::mprotect(page, pageSize, PROT_READ | PROT_EXEC);
    releaseCode();
    EXPECT_STREQ(page, "made");
    ::munmap(page, pageSize);
}

} // namespace
} // namespace kestrelfen
