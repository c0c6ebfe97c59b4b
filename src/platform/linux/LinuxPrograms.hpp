#pragma once

#include "platform/linux/DesktopEntryIndex.hpp"
#include "platform/linux/ProcessTable.hpp"
#include "platform/linux/ProgramCatalogue.hpp"
#include "platform/linux/ProgramIdentity.hpp"
#include "platform/linux/ProgramPlaces.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Knows programs by the desktop entries that are installed, and the products of the built-in lists by what
/// they are called here. What tells of one process alone comes before what a program says of itself, and
/// what its parents are comes last. Main thread only.
class LinuxPrograms final : public ProgramCatalogue, public ProgramIdentity {
  public:
    explicit LinuxPrograms(ProgramPlaces places = ProgramPlaces::ofThisSession());

    Program identify(const WindowClues& clues) override;
    bool isInstalled(std::string_view bundleIdentifier) override;
    std::optional<std::vector<std::string>> launchCommand(std::string_view bundleIdentifier) override;

    std::optional<std::string> bundleIdentifier(const ProgramClues& clues) override;

  private:
    /// A product and its entry, which a product known by its name alone does not have.
    struct Finding {
        std::string bundleIdentifier;
        const DesktopEntry* entry = nullptr;
    };
    using Found = std::optional<Finding>;

    const ProcessFacts* process(std::optional<std::int32_t> number);
    const ProcessFacts* processMeant(const ProgramClues& clues);

    Found byProcessAlone(const ProcessFacts* facts, std::optional<std::int32_t> number) const;
    Found byFlatpak(const std::string& name) const;
    Found byUnit(const ProcessUnit& unit) const;
    Found byLaunchedEntry(const std::filesystem::path& file) const;
    Found byWindow(const WindowClues& clues) const;
    Found byProgramFile(const ProcessFacts* facts) const;
    Found byAncestry(std::int32_t number);
    Found byClues(const ProgramClues& clues);

    Found byId(std::string_view id) const;
    Found byExecutable(std::string_view name) const;
    Found byIcon(std::string_view name) const;
    static Found ofEntry(const DesktopEntry* entry);
    static Found ofKnown(std::string_view name);

    DesktopEntryIndex index_;
    ProcessTable processes_;
};

} // namespace kestrelfen
