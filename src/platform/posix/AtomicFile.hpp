#pragma once

#include "platform/posix/FileDescriptor.hpp"

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

namespace kestrelfen {

/// A file that is only ever replaced as a whole: whoever reads it, at whatever moment and even after a crash,
/// finds either the old content or the new. Its folder serves for the new content while it is being written.
/// Belongs to one thread; waits for the disk.
class AtomicFile {
  public:
    /// `path` must not be a symbolic link: the link itself would be replaced.
    explicit AtomicFile(std::filesystem::path path);

    /// Puts `content` in the file's place. An existing file's permissions are kept; a new file and the
    /// folders that are made for it are the person's alone. After an error everything is as before.
    std::error_code replace(std::string_view content) const;

    /// The same, but asks `mayReplace` once the new content is safe on the disk, which takes its time; where
    /// the answer is false nothing is replaced and the error is std::errc::operation_canceled.
    std::error_code replaceIf(std::string_view content, const std::function<bool()>& mayReplace) const;

  private:
    std::error_code openDraft(FileDescriptor& draft) const;
    std::error_code fill(const FileDescriptor& draft, std::string_view content) const;
    std::error_code putInPlace() const;

    std::filesystem::path path_;
    std::filesystem::path draftPath_;
};

} // namespace kestrelfen
