#pragma once

#include "platform/ports/LoginItem.hpp"
#include "platform/ports/TextFileWriter.hpp"

#include <filesystem>
#include <string>
#include <vector>

namespace kestrelfen {

/// The desktop's own list of what starts with a session: one entry in the person's autostart folder, which
/// goes before one of the same name that the system brings. What a person has written into the entry is kept.
/// Main thread only; reads and writes small files.
class AutostartLoginItem final : public LoginItem {
  public:
    static constexpr const char* entryName = "app.kestrelfen.Kestrelfen.desktop";

    struct Places {
        /// The person's, made if it is not there.
        std::filesystem::path folder;
        /// The system's; an earlier one goes before a later one.
        std::vector<std::filesystem::path> systemFolders;
        /// What is to be started.
        std::filesystem::path program;

        /// `configuration` is where the person's programs keep what was chosen.
        static Places ofThisSession(const std::filesystem::path& configuration);
    };

    /// `writer` outlives this object.
    AutostartLoginItem(Places places, TextFileWriter& writer);

    bool isEnabled() const override;
    void setEnabled(bool enabled, Done done) override;

  private:
    std::filesystem::path file() const { return places_.folder / entryName; }
    std::string freshEntry() const;
    std::string systemEntry() const;
    std::optional<std::string> enable();
    std::optional<std::string> disable();
    std::optional<std::string> write(const std::string& entry);
    std::optional<std::string> removeFile() const;

    Places places_;
    TextFileWriter& writer_;
};

} // namespace kestrelfen
