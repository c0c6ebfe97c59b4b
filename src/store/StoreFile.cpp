#include "store/StoreFile.hpp"

#include <cerrno>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kestrelfen {

namespace {

constexpr mode_t privateFile = 0600;
constexpr mode_t privateFolder = 0700;

[[noreturn]] void failAt(const std::filesystem::path& path) {
    throw std::system_error(errno, std::generic_category(), path.string());
}

void makeFolders(const std::filesystem::path& folder) {
    if (folder.empty() || ::mkdir(folder.c_str(), privateFolder) == 0 || errno == EEXIST) {
        return;
    }
    if (errno != ENOENT || !folder.has_relative_path()) {
        failAt(folder);
    }
    makeFolders(folder.parent_path());
    if (::mkdir(folder.c_str(), privateFolder) != 0 && errno != EEXIST) {
        failAt(folder);
    }
}

void demandAccess(const std::filesystem::path& path) {
    if (::faccessat(AT_FDCWD, path.c_str(), R_OK | W_OK, AT_EACCESS) != 0) {
        failAt(path);
    }
}

} // namespace

bool StoreFile::makeIfMissing() const {
    bool isMade = make();
    if (!isMade && errno == ENOENT && path_.has_parent_path()) {
        makeFolders(path_.parent_path());
        isMade = make();
    }
    if (!isMade && errno != EEXIST) {
        failAt(path_);
    }
    return isMade;
}

bool StoreFile::make() const {
    const int descriptor = ::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, privateFile);
    return descriptor >= 0 && ::close(descriptor) == 0;
}

void StoreFile::demandUsable() const {
    if (!std::filesystem::is_regular_file(path_)) {
        throw std::runtime_error("something other than a file stands at " + path_.string());
    }
    // The database takes such a file for an empty one.
    if (std::filesystem::file_size(path_) == 1) {
        throw std::runtime_error("file is not a database");
    }
    demandAccess(path_);
    // The database needs room beside its file.
    demandAccess(path_.parent_path());
}

void StoreFile::remove() const noexcept {
    for (const char* const ending : {"", "-wal", "-shm", "-journal"}) {
        ::unlink(beside(ending).c_str());
    }
}

void StoreFile::removeTraces(bool hadLog, bool hadLogIndex) const noexcept {
    if (!hadLogIndex) {
        ::unlink(beside("-shm").c_str());
    }
    // In a log that is not empty, another program has saved something meanwhile.
    struct stat log {};
    if (!hadLog && ::stat(beside("-wal").c_str(), &log) == 0 && log.st_size == 0) {
        ::unlink(beside("-wal").c_str());
    }
}

bool StoreFile::stands(const char* ending) const {
    return ::access(beside(ending).c_str(), F_OK) == 0;
}

} // namespace kestrelfen
