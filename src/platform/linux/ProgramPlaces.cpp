#include "platform/linux/ProgramPlaces.hpp"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace kestrelfen {

namespace {

namespace fs = std::filesystem;

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::string variable(const char* name, std::string_view substitute) {
    std::string value = variable(name);
    return value.empty() ? std::string(substitute) : value;
}

/// The folders of entries below those of data, each once.
class EntryFolders {
  public:
    void addBelow(const fs::path& data) {
        fs::path folder = (data / "applications").lexically_normal();
        if (data.is_absolute() && std::find(folders_.begin(), folders_.end(), folder) == folders_.end()) {
            folders_.push_back(std::move(folder));
        }
    }

    void addBelowEach(std::string_view list) {
        while (!list.empty()) {
            const std::string_view data = list.substr(0, list.find(':'));
            addBelow(data);
            list.remove_prefix(std::min(list.size(), data.size() + 1));
        }
    }

    std::vector<fs::path> folders() && { return std::move(folders_); }

  private:
    std::vector<fs::path> folders_;
};

std::vector<fs::path> entryFolders() {
    const fs::path home = variable("HOME");
    const fs::path ownData = home / ".local/share";
    EntryFolders folders;
    folders.addBelow(variable("XDG_DATA_HOME", ownData.string()));
    folders.addBelowEach(variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
    // Not every session has told these among the others.
    folders.addBelow(ownData / "flatpak/exports/share");
    folders.addBelow("/var/lib/flatpak/exports/share");
    folders.addBelow("/var/lib/snapd/desktop");
    return std::move(folders).folders();
}

std::string localeOfMessages() {
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (std::string value = variable(name); !value.empty()) {
            return value;
        }
    }
    return {};
}

} // namespace

ProgramPlaces ProgramPlaces::ofThisSession() {
    return {"/proc", entryFolders(), localeOfMessages()};
}

} // namespace kestrelfen
