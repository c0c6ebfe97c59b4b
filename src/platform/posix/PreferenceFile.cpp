#include "platform/posix/PreferenceFile.hpp"

#include "platform/posix/AtomicFile.hpp"
#include "platform/posix/FileDescriptor.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace kestrelfen {

namespace {

constexpr off_t largestFile = 64'000'000;
constexpr int mostLinks = 40;
constexpr mode_t privateFile = 0600;

using Reading = PreferenceFile::Reading;

/// 0, or the error that says why the content cannot be preferences.
int kindError(const struct stat& status) {
    if (S_ISDIR(status.st_mode)) {
        return EISDIR;
    }
    if (!S_ISREG(status.st_mode)) {
        return EINVAL;
    }
    return status.st_size > largestFile ? EFBIG : 0;
}

/// Appends everything that the file at `path` holds; 0 or an error.
int readAll(const std::filesystem::path& path, std::string& text) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0) {
        return errno;
    }
    if (const int error = kindError(status)) {
        return error;
    }
    char buffer[16'384];
    for (;;) {
        const ssize_t count = ::read(file.number(), buffer, sizeof buffer);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return count == 0 ? 0 : errno;
        }
        text.append(buffer, count < 0 ? 0 : static_cast<std::size_t>(count));
    }
}

} // namespace

PreferenceFile::PreferenceFile(std::filesystem::path path) {
    std::error_code ignored;
    path_ = std::filesystem::absolute(path, ignored);
    if (path_.empty()) {
        path_ = std::move(path);
    }
}

std::vector<std::filesystem::path> PreferenceFile::folders() const {
    std::vector<std::filesystem::path> result{path_.parent_path()};
    if (auto other = target().parent_path(); other != result.front()) {
        result.push_back(std::move(other));
    }
    return result;
}

PreferenceFile::Reading PreferenceFile::read() const {
    Reading reading;
    reading.stamp = stamp();
    const int error = readAll(path_, reading.text);
    if (error == 0) {
        reading.outcome = Reading::Outcome::text;
    } else if (error != ENOENT && error != ENOTDIR) {
        reading.outcome = Reading::Outcome::unreadable;
        reading.reason = std::generic_category().message(error);
    }
    return reading;
}

std::error_code PreferenceFile::replace(std::string_view known, std::string_view content) const {
    return AtomicFile(target()).replaceIf(content, [this, known] { return read().text == known; });
}

PreferenceFile::SettingAside PreferenceFile::setAside() const {
    const std::filesystem::path file = target();
    for (int number = 1;; ++number) {
        const auto name =
            file.stem().string() + ".damaged-" + std::to_string(number) + file.extension().string();
        const std::filesystem::path place = file.parent_path() / name;
        // Taking the name first, as an empty file, makes sure that nothing is ever overwritten.
        const FileDescriptor taken(
            ::open(place.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, privateFile));
        if (!taken.isOpen() && errno == EEXIST) {
            continue;
        }
        if (!taken.isOpen() || ::rename(file.c_str(), place.c_str()) != 0) {
            const std::error_code error(errno, std::generic_category());
            if (taken.isOpen()) {
                ::unlink(place.c_str());
            }
            return {{}, error};
        }
        return {place};
    }
}

/// Where the path leads to, even when nothing is there yet.
std::filesystem::path PreferenceFile::target() const {
    std::filesystem::path result = path_;
    std::error_code error;
    for (int links = 0; links < mostLinks && std::filesystem::is_symlink(result, error); ++links) {
        const auto next = std::filesystem::read_symlink(result, error);
        result = result.parent_path() / next;
    }
    return result;
}

} // namespace kestrelfen
