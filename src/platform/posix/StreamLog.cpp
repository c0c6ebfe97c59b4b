#include "platform/posix/StreamLog.hpp"

namespace kestrelfen {

void StreamLog::write(LogLevel level, std::string_view category, std::string_view text) {
    if (level == LogLevel::debug) {
        return;
    }
    const char* const mark = level == LogLevel::error ? "error: " : "";
    std::fprintf(stream_, "kestrelfen: %.*s: %s%.*s\n", static_cast<int>(category.size()), category.data(),
                 mark, static_cast<int>(text.size()), text.data());
    std::fflush(stream_);
}

} // namespace kestrelfen
