#pragma once

#include <string>
#include <sys/stat.h>

namespace kestrelfen {

/// What tells two states of a file apart without reading it. All zero where there is no file. A plain value,
/// for any thread.
struct FileStamp {
    dev_t device{};
    ino_t inode{};
    off_t size{};
    timespec modified{};
    timespec changed{};

    /// The stamp of the file at `path`, symbolic links followed.
    static FileStamp of(const std::string& path);

    /// Whether both are the same file, last written within the same second.
    bool isSameToTheSecond(const FileStamp& other) const;

    friend bool operator==(const FileStamp& left, const FileStamp& right);
};

} // namespace kestrelfen
