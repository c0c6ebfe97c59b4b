#include "platform/CalendarEnvironment.hpp"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

namespace kestrelfen {

namespace files = std::filesystem;

ZoneVariable::ZoneVariable() {
    if (const char* const value = std::getenv("TZ")) {
        before_ = value;
    }
}

ZoneVariable::~ZoneVariable() {
    before_ ? set(*before_) : unset();
    tzset();
}

void ZoneVariable::set(const std::string& value) {
    setenv("TZ", value.c_str(), 1);
}

void ZoneVariable::unset() {
    unsetenv("TZ");
}

std::string zoneFileOf(const std::string& zone) {
    return "/usr/share/zoneinfo/" + zone;
}

void replaceByCopy(const std::string& path, const std::string& zone) {
    const std::string copy = path + ".new";
    files::copy_file(zoneFileOf(zone), copy);
    files::last_write_time(copy, files::last_write_time(zoneFileOf(zone)));
    files::rename(copy, path);
}

void writeOver(const std::string& path, const std::string& zone) {
    const auto time = files::last_write_time(path);
    std::ofstream(path, std::ios::binary) << std::ifstream(zoneFileOf(zone), std::ios::binary).rdbuf();
    files::last_write_time(path, time);
}

void replaceByLink(const std::string& path, const std::string& zone) {
    const std::string link = path + ".new";
    files::create_symlink(zoneFileOf(zone), link);
    files::rename(link, path);
}

} // namespace kestrelfen
