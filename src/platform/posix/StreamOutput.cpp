#include "platform/posix/StreamOutput.hpp"

namespace kestrelfen {

void StreamOutput::print(std::string_view line) {
    std::fprintf(stream_, "%.*s\n", static_cast<int>(line.size()), line.data());
    std::fflush(stream_);
}

} // namespace kestrelfen
