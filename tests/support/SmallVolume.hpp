#pragma once

#include <filesystem>
#include <fstream>
#include <sched.h>
#include <string>
#include <sys/mount.h>

namespace kestrelfen {

/// A volume in memory of 64 KiB, or as told, mounted at a folder for this process alone. Needs the right to
/// mount.
class SmallVolume {
  public:
    explicit SmallVolume(std::filesystem::path folder, const char* options = "size=64k")
        : folder_(std::move(folder)) {
        isMounted_ = ::unshare(CLONE_NEWNS) == 0 &&
                     ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                     ::mount("none", folder_.c_str(), "tmpfs", 0, options) == 0;
    }

    SmallVolume(const SmallVolume&) = delete;
    SmallVolume& operator=(const SmallVolume&) = delete;

    ~SmallVolume() {
        if (isMounted_) {
            ::umount2(folder_.c_str(), MNT_DETACH);
        }
    }

    bool isMounted() const { return isMounted_; }

    /// Takes all the room that is left.
    void fill() const {
        std::ofstream stream(filler());
        const std::string block(65'536, 'x');
        while (stream << block << std::flush) {
        }
    }

    void makeRoom() const { std::filesystem::remove(filler()); }

  private:
    std::filesystem::path filler() const { return folder_ / "filler"; }

    std::filesystem::path folder_;
    bool isMounted_ = false;
};

} // namespace kestrelfen
