#pragma once

#include <filesystem>

namespace kestrelfen {

/// A folder for the store of a run that named none: the run's alone, in memory where the system offers that.
/// It is gone, with the store in it, when this ends. There is one at a time. Main thread only.
class PrivateFolder {
  public:
    /// Throws std::system_error where no folder can be made.
    PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();

    /// Where the store lies in it.
    const std::filesystem::path& storeFile() const { return storeFile_; }

    /// Removes the one that there is, if any. May be called in a signal handler.
    static void removeAtOnce();

  private:
    std::filesystem::path storeFile_;
};

} // namespace kestrelfen
