#pragma once

#include <optional>
#include <string>

namespace kestrelfen {

/// Sets the environment variable TZ for the process and, at its end, restores what was before.
class ZoneVariable {
  public:
    ZoneVariable();
    explicit ZoneVariable(const std::string& value) : ZoneVariable() { set(value); }
    ZoneVariable(const ZoneVariable&) = delete;
    ZoneVariable& operator=(const ZoneVariable&) = delete;
    ~ZoneVariable();

    static void set(const std::string& value);
    static void unset();

  private:
    std::optional<std::string> before_;
};

/// The file of a zone in the system's zone database.
std::string zoneFileOf(const std::string& zone);

/// Puts a copy of a zone's file in the place of `path`, as a new file.
void replaceByCopy(const std::string& path, const std::string& zone);

/// Writes a zone's file into the file that stands at `path`, which keeps its time of modification.
void writeOver(const std::string& path, const std::string& zone);

/// Puts a symbolic link to a zone's file in the place of `path`.
void replaceByLink(const std::string& path, const std::string& zone);

} // namespace kestrelfen
