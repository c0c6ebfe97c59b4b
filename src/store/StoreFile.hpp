#pragma once

#include <filesystem>
#include <utility>

namespace kestrelfen {

/// The store's file as the file system sees it. Belongs to one thread. Throws std::runtime_error,
/// as std::system_error where the file system refuses.
class StoreFile {
  public:
    explicit StoreFile(std::filesystem::path path) : path_(std::move(path)) {}

    const std::filesystem::path& path() const { return path_; }

    /// Makes an empty file for the person alone, and the folders that lead to it, where there is none.
    /// Answers whether it did.
    bool makeIfMissing() const;

    /// The same file by the path that the database keeps its other files beside, links followed.
    StoreFile resolved() const { return StoreFile(std::filesystem::canonical(path_)); }

    /// Throws where something else stands in the file's place, or where it could be read only: the history is
    /// then not to be opened, and nothing is to be left beside it.
    void demandUsable() const;

    /// Removes the file and what the database keeps beside it.
    void remove() const noexcept;

    /// Removes what an attempt to open the file has left beside it where nothing was before.
    void removeTraces(bool hadLog, bool hadLogIndex) const noexcept;

    bool hasLog() const { return stands("-wal"); }
    bool hasLogIndex() const { return stands("-shm"); }
    bool hasRollbackJournal() const { return stands("-journal"); }

  private:
    std::filesystem::path beside(const char* ending) const { return path_.string() + ending; }
    bool make() const;
    bool stands(const char* ending) const;

    std::filesystem::path path_;
};

} // namespace kestrelfen
