#include "PrivateFolder.hpp"

#include "store/StoreConfiguration.hpp"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>
#include <system_error>
#include <unistd.h>

namespace kestrelfen {

namespace {

/// What a signal handler can remove: every file that may lie in the folder, then the folder itself.
struct Leftovers {
    static constexpr std::array<const char*, 4> endings{"", "-wal", "-shm", "-journal"};

    using Path = std::array<char, PATH_MAX>;

    std::array<Path, endings.size()> files{};
    Path folder{};
};

Leftovers leftovers;

void remember(Leftovers::Path& place, const std::string& path) {
    path.copy(place.data(), place.size() - 1);
}

/// The folder's name, or an empty text where none can be made there.
std::string makeFolderIn(const std::filesystem::path& parent) {
    std::string name = (parent / ("kestrelfen-sim-" + std::to_string(getpid()) + "-XXXXXX")).string();
    return name.size() < PATH_MAX / 2 && mkdtemp(name.data()) ? name : std::string();
}

std::filesystem::path makeFolder() {
    std::error_code ignored;
    for (const std::filesystem::path& parent :
         {std::filesystem::path("/dev/shm"), std::filesystem::temp_directory_path(ignored)}) {
        if (const std::string name = makeFolderIn(parent); !name.empty()) {
            return name;
        }
    }
    throw std::system_error(errno, std::generic_category(), "no folder for the store can be made");
}

} // namespace

PrivateFolder::PrivateFolder() {
    const std::filesystem::path folder = makeFolder();
    storeFile_ = folder / StoreConfiguration::fileName;
    for (std::size_t index = 0; index < Leftovers::endings.size(); ++index) {
        remember(leftovers.files[index], storeFile_.string() + Leftovers::endings[index]);
    }
    remember(leftovers.folder, folder.string());
}

PrivateFolder::~PrivateFolder() {
    removeAtOnce();
    leftovers = {};
}

void PrivateFolder::removeAtOnce() {
    if (leftovers.folder.front() == '\0') {
        return;
    }
    for (const Leftovers::Path& file : leftovers.files) {
        unlink(file.data());
    }
    rmdir(leftovers.folder.data());
}

} // namespace kestrelfen
