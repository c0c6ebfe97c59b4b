#include "platform/posix/AtomicFile.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

namespace kestrelfen {

namespace {

constexpr mode_t privateFile = 0600;
constexpr mode_t privateFolder = 0700;
constexpr mode_t permissionBits = 07777;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

std::error_code writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return lastError();
        }
        content.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return {};
}

std::error_code makeFolders(const std::filesystem::path& folder) {
    if (::mkdir(folder.c_str(), privateFolder) == 0 || errno == EEXIST) {
        return {};
    }
    if (errno != ENOENT || !folder.has_relative_path()) {
        return lastError();
    }
    if (const auto error = makeFolders(folder.parent_path())) {
        return error;
    }
    return ::mkdir(folder.c_str(), privateFolder) == 0 || errno == EEXIST ? std::error_code() : lastError();
}

/// Whether `path` still leads to the open file.
bool leadsTo(const std::filesystem::path& path, const FileDescriptor& file) {
    struct stat there {};
    struct stat here {};
    return ::lstat(path.c_str(), &there) == 0 && ::fstat(file.number(), &here) == 0 &&
           there.st_dev == here.st_dev && there.st_ino == here.st_ino;
}

/// Gives `descriptor` the owner and the permissions of the file at `path`; a new file's where there is none.
std::error_code takeOverPermissions(int descriptor, const std::filesystem::path& path) {
    struct stat old {};
    if (::stat(path.c_str(), &old) != 0) {
        return ::fchmod(descriptor, privateFile) == 0 ? std::error_code() : lastError();
    }
    // Only the superuser may give files away; for everybody else the file is their own already.
    [[maybe_unused]] const int ignored = ::fchown(descriptor, old.st_uid, old.st_gid);
    return ::fchmod(descriptor, old.st_mode & permissionBits) == 0 ? std::error_code() : lastError();
}

} // namespace

AtomicFile::AtomicFile(std::filesystem::path path)
    : path_(std::move(path)), draftPath_(path_.parent_path() / ("." + path_.filename().string() + ".new")) {}

std::error_code AtomicFile::replace(std::string_view content) const {
    return replaceIf(content, [] { return true; });
}

std::error_code AtomicFile::replaceIf(std::string_view content,
                                      const std::function<bool()>& mayReplace) const {
    // A file that the person has made read-only is not to be replaced behind their back.
    if (::faccessat(AT_FDCWD, path_.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) {
        return lastError();
    }
    if (const auto error = makeFolders(path_.parent_path())) {
        return error;
    }
    FileDescriptor draft;
    if (const auto error = openDraft(draft)) {
        return error;
    }
    auto error = fill(draft, content);
    if (!error) {
        error = mayReplace() ? putInPlace() : std::make_error_code(std::errc::operation_canceled);
    }
    if (error) {
        ::unlink(draftPath_.c_str());
    }
    return error;
}

/// The draft always has the same name, so that one which a crash left behind is used again; the lock keeps a
/// second program from writing into it at the same time.
std::error_code AtomicFile::openDraft(FileDescriptor& draft) const {
    do {
        draft = FileDescriptor(
            ::open(draftPath_.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, privateFile));
        if (!draft.isOpen() || ::flock(draft.number(), LOCK_EX | LOCK_NB) != 0) {
            return lastError();
        }
    } while (!leadsTo(draftPath_, draft));
    return {};
}

std::error_code AtomicFile::fill(const FileDescriptor& draft, std::string_view content) const {
    if (::ftruncate(draft.number(), 0) != 0) {
        return lastError();
    }
    if (const auto error = takeOverPermissions(draft.number(), path_)) {
        return error;
    }
    if (const auto error = writeAll(draft.number(), content)) {
        return error;
    }
    return ::fsync(draft.number()) == 0 ? std::error_code() : lastError();
}

std::error_code AtomicFile::putInPlace() const {
    if (::rename(draftPath_.c_str(), path_.c_str()) != 0) {
        return lastError();
    }
    // The new content is in force already; not every file system lets a folder be synchronised.
    const FileDescriptor folder(::open(path_.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen()) {
        ::fsync(folder.number());
    }
    return {};
}

} // namespace kestrelfen
