#include "platform/posix/StandardFolders.hpp"

#include <cstdlib>
#include <optional>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace kestrelfen {

namespace {

std::optional<std::filesystem::path> absolutePathFrom(const char* variable) {
    const char* const value = std::getenv(variable);
    const std::filesystem::path path = value ? value : "";
    return path.is_absolute() ? std::optional(path) : std::nullopt;
}

std::filesystem::path registeredHome() {
    constexpr std::size_t entrySize = 16'384;
    std::vector<char> buffer(entrySize);
    passwd entry{};
    passwd* found = nullptr;
    getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
    return found && found->pw_dir && *found->pw_dir ? found->pw_dir : "/";
}

} // namespace

std::filesystem::path homeFolder() {
    const auto home = absolutePathFrom("HOME");
    return home ? *home : registeredHome();
}

std::filesystem::path configurationFolder() {
    const auto folder = absolutePathFrom("XDG_CONFIG_HOME");
    return folder ? *folder : homeFolder() / ".config";
}

std::filesystem::path dataFolder() {
    const auto folder = absolutePathFrom("XDG_DATA_HOME");
    return folder ? *folder : homeFolder() / ".local/share";
}

} // namespace kestrelfen
