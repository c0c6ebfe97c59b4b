#pragma once

#include "platform/ports/Log.hpp"

#include <cstdio>

namespace kestrelfen {

/// Writes each line to a stream, as the session's journal wants it. Lines of level debug are left out. Any
/// thread.
class StreamLog final : public Log {
  public:
    explicit StreamLog(std::FILE* stream) : stream_(stream) {}

    void write(LogLevel level, std::string_view category, std::string_view text) override;

  private:
    std::FILE* stream_;
};

} // namespace kestrelfen
