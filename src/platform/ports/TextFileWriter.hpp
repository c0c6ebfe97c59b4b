#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrelfen {

/// Writes files that the person asked for, at the place that the person chose. Main thread only; waits for
/// the disk.
class TextFileWriter {
  public:
    virtual ~TextFileWriter() = default;

    /// Puts `text` at `path` as a whole: whoever reads the file finds either what it held before or all of
    /// the text. Answers, in words, why that failed; everything is then as before. Makes no folders.
    virtual std::optional<std::string> write(const std::string& path, std::string_view text) = 0;
};

} // namespace kestrelfen
