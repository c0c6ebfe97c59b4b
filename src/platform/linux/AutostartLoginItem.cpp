#include "platform/linux/AutostartLoginItem.hpp"

#include "platform/linux/ExecLine.hpp"
#include "platform/linux/KeyFile.hpp"
#include "platform/linux/KeyFileEdit.hpp"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace kestrelfen {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view group = "Desktop Entry";
/// Names the program without which the desktop passes over the entry in silence.
constexpr const char* conditionKey = "TryExec";
constexpr const char* hiddenKey = "Hidden";
constexpr const char* switchKey = "X-GNOME-Autostart-enabled";

/// Empty when there is none.
std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool isRunnable(const std::string& program) {
    return program.find('/') == std::string::npos || ::access(program.c_str(), X_OK) == 0;
}

bool holds(const std::map<std::string, std::string, std::less<>>& values, const char* key,
           std::string_view value) {
    const auto found = values.find(key);
    return found != values.end() && found->second == value;
}

bool startsSomething(const std::map<std::string, std::string, std::less<>>& values) {
    const auto line = values.find("Exec");
    const auto words =
        line == values.end() ? std::vector<std::string>() : execWords(unescapedValue(line->second));
    const auto condition = values.find(conditionKey);
    return !words.empty() && isRunnable(words.front()) &&
           (condition == values.end() || isRunnable(unescapedValue(condition->second)));
}

bool isInForce(const std::string& entry) {
    const auto values = keyFileGroup(entry, group);
    return startsSomething(values) && !holds(values, hiddenKey, "true") && !holds(values, switchKey, "false");
}

/// Quoted as an Exec line wants it, and then as any value of a key file.
std::string execValue(const std::string& program) {
    std::string quoted = "\"";
    for (const char letter : program) {
        if (letter == '%') {
            quoted += '%';
        } else if (letter == '\\') {
            quoted += "\\\\\\";
        } else if (letter == '"' || letter == '`' || letter == '$') {
            quoted += "\\\\";
        }
        quoted += letter;
    }
    return quoted + '"';
}

/// As any value of a key file.
std::string plainValue(std::string_view text) {
    std::string value;
    for (const char letter : text) {
        value += letter == '\\' ? "\\\\" : std::string(1, letter);
    }
    return value;
}

std::vector<fs::path> systemConfigurationFolders() {
    const char* const variable = std::getenv("XDG_CONFIG_DIRS");
    std::string_view list = variable && *variable ? variable : "/etc/xdg";
    std::vector<fs::path> folders;
    while (!list.empty()) {
        const std::string_view folder = list.substr(0, list.find(':'));
        folders.push_back(fs::path(folder) / "autostart");
        list.remove_prefix(std::min(list.size(), folder.size() + 1));
    }
    return folders;
}

/// An image that unpacks itself runs from a place that is gone later: what counts is the image.
fs::path thisProgram() {
    const char* const image = std::getenv("APPIMAGE");
    std::error_code error;
    return image && *image == '/' ? fs::path(image) : fs::read_symlink("/proc/self/exe", error);
}

} // namespace

AutostartLoginItem::Places AutostartLoginItem::Places::ofThisSession(const fs::path& configuration) {
    return {configuration / "autostart", systemConfigurationFolders(), thisProgram()};
}

AutostartLoginItem::AutostartLoginItem(Places places, TextFileWriter& writer)
    : places_(std::move(places)), writer_(writer) {}

bool AutostartLoginItem::isEnabled() const {
    std::error_code error;
    return isInForce(fs::exists(file(), error) ? contentOf(file()) : systemEntry());
}

void AutostartLoginItem::setEnabled(bool enabled, Done done) {
    done(isEnabled() == enabled ? std::nullopt : enabled ? enable() : disable());
}

std::string AutostartLoginItem::freshEntry() const {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Kestrelfen\n"
           "Comment=Eye breaks at the right time\n"
           "Icon=app.kestrelfen.Kestrelfen\n"
           "Exec=" +
           execValue(places_.program.string()) + "\n" + conditionKey + "=" +
           plainValue(places_.program.string()) +
           "\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

std::string AutostartLoginItem::systemEntry() const {
    for (const fs::path& folder : places_.systemFolders) {
        if (std::string entry = contentOf(folder / entryName); !entry.empty()) {
            return entry;
        }
    }
    return {};
}

std::optional<std::string> AutostartLoginItem::enable() {
    const std::string own = contentOf(file());
    std::string cleared = withoutKey(withoutKey(own, group, hiddenKey), group, switchKey);
    return write(isInForce(cleared) ? cleared : freshEntry());
}

std::optional<std::string> AutostartLoginItem::disable() {
    const std::string own = contentOf(file());
    if (own == freshEntry() && !isInForce(systemEntry())) {
        return removeFile();
    }
    return write(withKey(own.empty() ? freshEntry() : own, group, hiddenKey, "true"));
}

std::optional<std::string> AutostartLoginItem::write(const std::string& entry) {
    std::error_code error;
    fs::create_directories(places_.folder, error);
    return error ? std::optional(error.message()) : writer_.write(file().string(), entry);
}

std::optional<std::string> AutostartLoginItem::removeFile() const {
    std::error_code error;
    fs::remove(file(), error);
    return error ? std::optional(error.message()) : std::nullopt;
}

} // namespace kestrelfen
