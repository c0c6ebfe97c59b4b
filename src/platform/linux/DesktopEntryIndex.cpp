#include "platform/linux/DesktopEntryIndex.hpp"

#include "platform/linux/Caseless.hpp"
#include "platform/linux/ExecLine.hpp"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <tuple>
#include <utility>

namespace kestrelfen {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view ending = ".desktop";
constexpr std::uintmax_t largestEntry = 1'000'000;
constexpr int deepestFolder = 4;

/// A folder that changed this short a time ago may change again without a new time of change.
constexpr std::chrono::seconds stampResolution{2};

std::optional<fs::file_time_type> modificationOf(const fs::path& folder) {
    std::error_code error;
    const auto time = fs::last_write_time(folder, error);
    return error ? std::nullopt : std::optional(time);
}

/// One that is dated ahead, by a clock that was set back, gets another time with its next change.
bool isSettled(const std::optional<fs::file_time_type>& modified) {
    const auto now = fs::file_time_type::clock::now();
    return !modified || *modified + stampResolution < now || *modified > now + stampResolution;
}

std::string idOf(const fs::path& root, const fs::path& file) {
    std::string id = file.lexically_relative(root).string();
    id.resize(id.size() - ending.size());
    std::replace(id.begin(), id.end(), '/', '-');
    return id;
}

bool isEntryFile(const fs::directory_entry& entry) {
    std::error_code error;
    return entry.path().extension() == ending && entry.is_regular_file(error) &&
           entry.file_size(error) <= largestEntry && !error;
}

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// Its rank among those of the same name.
auto plainness(const DesktopEntry& entry) {
    return std::make_tuple(entry.isUndisplayed, entry.words.empty(), entry.words.size());
}

std::string lastPart(const std::string& id) {
    return id.substr(id.rfind('.') + 1);
}

} // namespace

DesktopEntryIndex::DesktopEntryIndex(std::vector<fs::path> folders, std::string locale)
    : roots_(std::move(folders)), locale_(std::move(locale)) {}

void DesktopEntryIndex::refresh() {
    if (!isUpToDate()) {
        read();
    }
}

bool DesktopEntryIndex::isUpToDate() const {
    return !mayHaveMissedChanges_ && std::all_of(folders_.begin(), folders_.end(), [](const Folder& folder) {
        return modificationOf(folder.path) == folder.modified;
    });
}

void DesktopEntryIndex::read() {
    entries_.clear();
    ids_.clear();
    folders_.clear();
    mayHaveMissedChanges_ = false;
    for (const fs::path& root : roots_) {
        readFolder(root);
    }
    order();
    makeNames();
}

void DesktopEntryIndex::readFolder(const fs::path& root) {
    visit(root);
    std::vector<fs::path> files;
    std::error_code error;
    fs::recursive_directory_iterator entry(
        root, fs::directory_options::follow_directory_symlink | fs::directory_options::skip_permission_denied,
        error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (isEntryFile(*entry)) {
            files.push_back(entry->path());
        } else if (entry->is_directory(ignored)) {
            visit(entry->path());
            if (entry.depth() + 1 >= deepestFolder) {
                entry.disable_recursion_pending();
            }
        }
    }
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) {
        readFile(root, file);
    }
}

void DesktopEntryIndex::visit(const fs::path& path) {
    folders_.push_back({path, modificationOf(path)});
    mayHaveMissedChanges_ = mayHaveMissedChanges_ || !isSettled(folders_.back().modified);
}

void DesktopEntryIndex::readFile(const fs::path& root, const fs::path& file) {
    std::string id = idOf(root, file);
    const bool isFirst = ids_.emplace(id, entries_.size()).second;
    if (isFirst) {
        if (auto entry = DesktopEntry::parse(std::move(id), contentOf(file), locale_)) {
            entries_.push_back(*std::move(entry));
        }
    }
}

void DesktopEntryIndex::order() {
    std::erase_if(entries_, [](const DesktopEntry& entry) { return entry.isDeleted; });
    std::stable_sort(
        entries_.begin(), entries_.end(),
        [](const DesktopEntry& one, const DesktopEntry& other) { return plainness(one) < plainness(other); });
}

void DesktopEntryIndex::makeNames() {
    for (Names* const names : {&ids_, &lastIdParts_, &startupClasses_, &executables_, &icons_, &snaps_}) {
        names->clear();
    }
    for (std::size_t at = 0; at < entries_.size(); ++at) {
        const DesktopEntry& entry = entries_[at];
        ids_.emplace(lowered(entry.id), at);
        lastIdParts_.emplace(lowered(lastPart(entry.id)), at);
        startupClasses_.emplace(lowered(entry.startupClass), at);
        executables_.emplace(lowered(executableName(entry.words)), at);
        icons_.emplace(lowered(entry.icon), at);
        snaps_.emplace(lowered(entry.snapName), at);
    }
}

const DesktopEntry* DesktopEntryIndex::find(const Names& names, std::string_view name) const {
    const auto found = name.empty() ? names.end() : names.find(lowered(name));
    return found == names.end() ? nullptr : &entries_[found->second];
}

const DesktopEntry* DesktopEntryIndex::withId(std::string_view id) const {
    return find(ids_, id);
}

const DesktopEntry* DesktopEntryIndex::withLastIdPart(std::string_view part) const {
    return find(lastIdParts_, part);
}

const DesktopEntry* DesktopEntryIndex::withStartupClass(std::string_view name) const {
    return find(startupClasses_, name);
}

const DesktopEntry* DesktopEntryIndex::withExecutable(std::string_view name) const {
    return find(executables_, name);
}

const DesktopEntry* DesktopEntryIndex::withIcon(std::string_view name) const {
    return find(icons_, name);
}

const DesktopEntry* DesktopEntryIndex::withSnap(std::string_view name) const {
    return find(snaps_, name);
}

} // namespace kestrelfen
