#pragma once

#include <filesystem>
#include <unistd.h>

namespace kestrelfen {

/// While it lives, a test that the superuser runs is bound by file permissions like anybody else.
class UnprivilegedSection {
  public:
    /// `folder` is given to the user that the section runs as.
    explicit UnprivilegedSection(const std::filesystem::path& folder) {
        if (wasRoot_) {
            isEntered_ = ::chown(folder.c_str(), nobody, nobody) == 0 && ::seteuid(nobody) == 0;
        }
    }

    UnprivilegedSection(const UnprivilegedSection&) = delete;
    UnprivilegedSection& operator=(const UnprivilegedSection&) = delete;

    ~UnprivilegedSection() {
        if (wasRoot_) {
            [[maybe_unused]] const int ignored = ::seteuid(0);
        }
    }

    /// Whether permissions do count now.
    bool isEntered() const { return isEntered_; }

  private:
    static constexpr uid_t nobody = 65534;

    bool wasRoot_ = ::geteuid() == 0;
    bool isEntered_ = true;
};

} // namespace kestrelfen
