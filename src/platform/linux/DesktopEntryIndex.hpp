#pragma once

#include "platform/linux/DesktopEntry.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kestrelfen {

/// The desktop entries of this computer. Reads them when it is first asked, and again once a program has come
/// or gone. Names are compared without case; where several entries have one name, the plainest is found: one
/// that menus show before one that they do not, and one that starts the program with fewer words before one
/// with more. Main thread only.
class DesktopEntryIndex {
  public:
    /// Of two entries of one id, the one in the earlier folder holds.
    DesktopEntryIndex(std::vector<std::filesystem::path> folders, std::string locale);

    /// Looks for changes, at the cost of one question to the file system for each folder. What was found
    /// before is gone after it.
    void refresh();

    /// The plainest first.
    const std::vector<DesktopEntry>& entries() const { return entries_; }

    const DesktopEntry* withId(std::string_view id) const;
    /// The part of the id behind its last dot.
    const DesktopEntry* withLastIdPart(std::string_view part) const;
    const DesktopEntry* withStartupClass(std::string_view name) const;
    const DesktopEntry* withExecutable(std::string_view name) const;
    const DesktopEntry* withIcon(std::string_view name) const;
    const DesktopEntry* withSnap(std::string_view name) const;

  private:
    using Names = std::unordered_map<std::string, std::size_t>;

    struct Folder {
        std::filesystem::path path;
        /// Absent when there is no such folder.
        std::optional<std::filesystem::file_time_type> modified;
    };

    bool isUpToDate() const;
    void read();
    void readFolder(const std::filesystem::path& root);
    void visit(const std::filesystem::path& path);
    void readFile(const std::filesystem::path& root, const std::filesystem::path& file);
    void order();
    void makeNames();
    const DesktopEntry* find(const Names& names, std::string_view name) const;

    const std::vector<std::filesystem::path> roots_;
    const std::string locale_;
    /// Those that were read, and those below them.
    std::vector<Folder> folders_;
    bool mayHaveMissedChanges_ = true;
    std::vector<DesktopEntry> entries_;
    Names ids_;
    Names lastIdParts_;
    Names startupClasses_;
    Names executables_;
    Names icons_;
    Names snaps_;
};

} // namespace kestrelfen
