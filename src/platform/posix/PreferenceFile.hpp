#pragma once

#include "platform/posix/PreferenceStamp.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kestrelfen {

/// The file that keeps the preferences, as a text. Where its path is a symbolic link, the file that it leads
/// to is meant. Belongs to one thread.
class PreferenceFile {
  public:
    struct Reading {
        enum class Outcome { absent, text, unreadable };
        Outcome outcome = Outcome::absent;
        std::string text = {};
        /// Why it is unreadable; empty otherwise.
        std::string reason = {};
        /// Taken before the reading, so that a later change is always seen.
        PreferenceStamp stamp = {};
    };

    struct SettingAside {
        std::filesystem::path newPath;
        std::error_code error = {};
    };

    explicit PreferenceFile(std::filesystem::path path);

    const std::filesystem::path& path() const { return path_; }

    PreferenceStamp stamp() const { return PreferenceStamp::of(path_); }

    /// The folder of the path and, if it is another one, that of the file that a link leads to.
    std::vector<std::filesystem::path> folders() const;

    Reading read() const;

    /// Replaces the file as a whole; see AtomicFile. Where it reads no longer as `known` the moment before,
    /// somebody else has just written it: then it is left alone and the error is
    /// std::errc::operation_canceled. No file reads as an empty text.
    std::error_code replace(std::string_view known, std::string_view content) const;

    /// Moves the file to the first free one of NAME.damaged-1.EXT, NAME.damaged-2.EXT … in its folder.
    SettingAside setAside() const;

  private:
    std::filesystem::path target() const;

    std::filesystem::path path_;
};

} // namespace kestrelfen
