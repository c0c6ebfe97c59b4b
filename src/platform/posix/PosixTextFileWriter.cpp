#include "platform/posix/PosixTextFileWriter.hpp"

#include "platform/posix/AtomicFile.hpp"

#include <filesystem>

namespace kestrelfen {

namespace {

namespace fs = std::filesystem;

/// Only a regular file can be replaced, and only in a folder that is there.
std::error_code obstacle(const fs::path& path) {
    std::error_code error;
    const auto type = fs::status(path, error).type();
    if (type == fs::file_type::directory) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (type != fs::file_type::not_found) {
        return type == fs::file_type::regular || error ? error
                                                       : std::make_error_code(std::errc::not_supported);
    }
    const auto folder = fs::status(path.parent_path(), error).type();
    if (folder == fs::file_type::directory) {
        return {};
    }
    return std::make_error_code(folder == fs::file_type::not_found ? std::errc::no_such_file_or_directory
                                                                   : std::errc::not_a_directory);
}

std::error_code replace(const std::string& path, std::string_view text) {
    std::error_code error;
    const fs::path place = fs::weakly_canonical(fs::absolute(path, error), error);
    if (path.empty() || error) {
        return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
    }
    if (const auto found = obstacle(place)) {
        return found;
    }
    return AtomicFile(place).replace(text);
}

} // namespace

std::optional<std::string> PosixTextFileWriter::write(const std::string& path, std::string_view text) {
    const auto error = replace(path, text);
    return error ? std::optional(error.message()) : std::nullopt;
}

} // namespace kestrelfen
