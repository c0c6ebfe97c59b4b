#include "platform/posix/FolderSaveDialog.hpp"

namespace kestrelfen {

void FolderSaveDialog::ask(const std::string& proposedName, Chosen chosen) {
    const std::filesystem::path name = proposedName;
    std::filesystem::path place = folder_ / name;
    std::error_code error;
    for (int number = 2; std::filesystem::exists(place, error); ++number) {
        place = folder_ / (name.stem().string() + " " + std::to_string(number) + name.extension().string());
    }
    chosen(place.string());
}

} // namespace kestrelfen
