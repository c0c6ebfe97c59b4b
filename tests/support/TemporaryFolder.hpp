#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrelfen {

/// A folder of a test's own, gone with all that is in it when the test ends.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kestrelfen-test-XXXXXX").string();
        if (!mkdtemp(name.data())) {
            throw std::runtime_error("no temporary folder can be made");
        }
        path_ = name;
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    /// The names of everything that lies directly in it.
    std::set<std::string> names() const {
        std::set<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            result.insert(entry.path().filename().string());
        }
        return result;
    }

  private:
    std::filesystem::path path_;
};

inline std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// Writes into the file itself, whatever it held before.
inline void writeInPlace(const std::filesystem::path& file, std::string_view content) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
}

/// Replaces the file as most editors do.
inline void writeByRename(const std::filesystem::path& file, std::string_view content) {
    const std::filesystem::path other = file.string() + ".edited";
    writeInPlace(other, content);
    std::filesystem::rename(other, file);
}

} // namespace kestrelfen
