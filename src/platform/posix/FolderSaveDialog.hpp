#pragma once

#include "platform/ports/SaveDialog.hpp"

#include <filesystem>

namespace kestrelfen {

/// For a desktop without a dialog to show: the file goes into one folder, under a name that is still free
/// there. Main thread only.
class FolderSaveDialog final : public SaveDialog {
  public:
    explicit FolderSaveDialog(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void ask(const std::string& proposedName, Chosen chosen) override;

  private:
    std::filesystem::path folder_;
};

} // namespace kestrelfen
