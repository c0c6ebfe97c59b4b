#include "platform/posix/FileStamp.hpp"

namespace kestrelfen {

namespace {

bool isSameTime(const timespec& left, const timespec& right) {
    return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

} // namespace

FileStamp FileStamp::of(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim};
}

bool FileStamp::isSameToTheSecond(const FileStamp& other) const {
    return device == other.device && inode == other.inode && modified.tv_sec == other.modified.tv_sec;
}

bool operator==(const FileStamp& left, const FileStamp& right) {
    return left.device == right.device && left.inode == right.inode && left.size == right.size &&
           isSameTime(left.modified, right.modified) && isSameTime(left.changed, right.changed);
}

} // namespace kestrelfen
