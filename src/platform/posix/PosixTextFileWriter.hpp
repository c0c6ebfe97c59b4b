#pragma once

#include "platform/ports/TextFileWriter.hpp"

namespace kestrelfen {

/// Writes through a draft in the same folder. A new file is the person's alone; a symbolic link stays, and
/// what it leads to is replaced. Main thread only.
class PosixTextFileWriter final : public TextFileWriter {
  public:
    std::optional<std::string> write(const std::string& path, std::string_view text) override;
};

} // namespace kestrelfen
